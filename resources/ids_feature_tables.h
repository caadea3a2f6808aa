/// Numbers of the Feature Tables page.
#ifndef OV_RESOURCES_IDS_FEATURE_TABLES_H
#define OV_RESOURCES_IDS_FEATURE_TABLES_H

#endif
