/// Numbers of the Languages page.
#ifndef OV_RESOURCES_IDS_LANGUAGES_H
#define OV_RESOURCES_IDS_LANGUAGES_H

#endif
