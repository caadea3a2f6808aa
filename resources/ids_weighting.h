/// Numbers of the Score Weighting page.
#ifndef OV_RESOURCES_IDS_WEIGHTING_H
#define OV_RESOURCES_IDS_WEIGHTING_H

#endif
