/// Numbers of the Reporting page.
#ifndef OV_RESOURCES_IDS_REPORTING_H
#define OV_RESOURCES_IDS_REPORTING_H

#endif
