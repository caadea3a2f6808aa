/// The numbers of the pages, each page's in a file of its own, and what several
/// pages share. For the resource compiler and C++ alike, like ids.h.
#ifndef OV_RESOURCES_PAGE_IDS_H
#define OV_RESOURCES_PAGE_IDS_H

#include "pages/cell_handling/ids.h"
#include "pages/certifying/ids.h"
#include "pages/colour_table/ids.h"
#include "pages/custom_reports/ids.h"
#include "pages/drafting/ids.h"
#include "pages/drawing_scales/ids.h"
#include "pages/feature_tables/ids.h"
#include "pages/file_naming/ids.h"
#include "pages/files/ids.h"
#include "pages/languages/ids.h"
#include "pages/logging/ids.h"
#include "pages/misc/ids.h"
#include "pages/model_naming/ids.h"
#include "pages/reference_files/ids.h"
#include "pages/reporting/ids.h"
#include "pages/scan_period/ids.h"
#include "pages/signature_cell/ids.h"
#include "pages/third_party/ids.h"
#include "pages/title_block/ids.h"
#include "pages/urls/ids.h"
#include "pages/users/ids.h"
#include "pages/version/ids.h"
#include "pages/watermark_integrity/ids.h"
#include "pages/watermark_placement/ids.h"
#include "pages/weighting/ids.h"
#include "resources/ids.h"

// Entries of lists on several pages
#define IDS_ALWAYS 5300
#define IDS_NEVER 5301
#define IDS_USER_DEFINED 5302

#endif
