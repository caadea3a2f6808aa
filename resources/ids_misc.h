/// Numbers of the Miscellaneous page.
#ifndef OV_RESOURCES_IDS_MISC_H
#define OV_RESOURCES_IDS_MISC_H

#endif
