/// Numbers of the Signature Cells page.
#ifndef OV_RESOURCES_IDS_SIGNATURE_CELL_H
#define OV_RESOURCES_IDS_SIGNATURE_CELL_H

#endif
