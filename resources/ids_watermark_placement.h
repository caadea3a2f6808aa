/// Numbers of the Watermark Placement page.
#ifndef OV_RESOURCES_IDS_WATERMARK_PLACEMENT_H
#define OV_RESOURCES_IDS_WATERMARK_PLACEMENT_H

#endif
