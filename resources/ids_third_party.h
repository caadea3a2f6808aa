/// Numbers of the Third Party Apps page.
#ifndef OV_RESOURCES_IDS_THIRD_PARTY_H
#define OV_RESOURCES_IDS_THIRD_PARTY_H

#endif
