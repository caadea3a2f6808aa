/// Numbers of the Watermark Integrity page.
#ifndef OV_RESOURCES_IDS_WATERMARK_INTEGRITY_H
#define OV_RESOURCES_IDS_WATERMARK_INTEGRITY_H

#endif
