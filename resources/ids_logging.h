/// Numbers of the Logging page.
#ifndef OV_RESOURCES_IDS_LOGGING_H
#define OV_RESOURCES_IDS_LOGGING_H

#endif
