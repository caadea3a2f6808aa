/// Numbers of the Drafting page.
#ifndef OV_RESOURCES_IDS_DRAFTING_H
#define OV_RESOURCES_IDS_DRAFTING_H

#endif
