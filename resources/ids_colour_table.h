/// Numbers of the Colour Table page.
#ifndef OV_RESOURCES_IDS_COLOUR_TABLE_H
#define OV_RESOURCES_IDS_COLOUR_TABLE_H

#endif
