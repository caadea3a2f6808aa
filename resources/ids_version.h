/// Numbers of the Version page.
#ifndef OV_RESOURCES_IDS_VERSION_H
#define OV_RESOURCES_IDS_VERSION_H

#endif
