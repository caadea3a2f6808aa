/// Numbers of the Reference Files page.
#ifndef OV_RESOURCES_IDS_REFERENCE_FILES_H
#define OV_RESOURCES_IDS_REFERENCE_FILES_H

#endif
