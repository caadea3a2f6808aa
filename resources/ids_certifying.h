/// Numbers of the Certifying page.
#ifndef OV_RESOURCES_IDS_CERTIFYING_H
#define OV_RESOURCES_IDS_CERTIFYING_H

#endif
