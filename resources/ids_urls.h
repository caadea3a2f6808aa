/// Numbers of the URLs page.
#ifndef OV_RESOURCES_IDS_URLS_H
#define OV_RESOURCES_IDS_URLS_H

#endif
