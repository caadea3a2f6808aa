/// Numbers of the Users page.
#ifndef OV_RESOURCES_IDS_USERS_H
#define OV_RESOURCES_IDS_USERS_H

#endif
