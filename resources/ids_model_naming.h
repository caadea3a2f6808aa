/// Numbers of the Model Naming page.
#ifndef OV_RESOURCES_IDS_MODEL_NAMING_H
#define OV_RESOURCES_IDS_MODEL_NAMING_H

#endif
