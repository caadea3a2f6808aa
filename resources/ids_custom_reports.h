/// Numbers of the Custom Reports page.
#ifndef OV_RESOURCES_IDS_CUSTOM_REPORTS_H
#define OV_RESOURCES_IDS_CUSTOM_REPORTS_H

#endif
