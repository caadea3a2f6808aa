/// Numbers of the Drawing Scales page.
#ifndef OV_RESOURCES_IDS_DRAWING_SCALES_H
#define OV_RESOURCES_IDS_DRAWING_SCALES_H

#endif
