/// Numbers of the File Paths page.
#ifndef OV_RESOURCES_IDS_FILES_H
#define OV_RESOURCES_IDS_FILES_H

#endif
