/// Numbers of the Scan Period page.
#ifndef OV_RESOURCES_IDS_SCAN_PERIOD_H
#define OV_RESOURCES_IDS_SCAN_PERIOD_H

#endif
