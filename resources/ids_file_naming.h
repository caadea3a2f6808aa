/// Numbers of the File Naming page.
#ifndef OV_RESOURCES_IDS_FILE_NAMING_H
#define OV_RESOURCES_IDS_FILE_NAMING_H

#endif
