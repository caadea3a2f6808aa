/// Numbers of the Title Blocks page.
#ifndef OV_RESOURCES_IDS_TITLE_BLOCK_H
#define OV_RESOURCES_IDS_TITLE_BLOCK_H

#endif
