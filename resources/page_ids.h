/// The numbers of the pages, each page's in a file of its own, and what several
/// pages share. For the resource compiler and C++ alike, like ids.h.
#ifndef OV_RESOURCES_PAGE_IDS_H
#define OV_RESOURCES_PAGE_IDS_H

#include "resources/ids.h"
#include "resources/ids_cell_handling.h"
#include "resources/ids_certifying.h"
#include "resources/ids_colour_table.h"
#include "resources/ids_custom_reports.h"
#include "resources/ids_drafting.h"
#include "resources/ids_drawing_scales.h"
#include "resources/ids_feature_tables.h"
#include "resources/ids_file_naming.h"
#include "resources/ids_files.h"
#include "resources/ids_languages.h"
#include "resources/ids_logging.h"
#include "resources/ids_misc.h"
#include "resources/ids_model_naming.h"
#include "resources/ids_reference_files.h"
#include "resources/ids_reporting.h"
#include "resources/ids_scan_period.h"
#include "resources/ids_signature_cell.h"
#include "resources/ids_third_party.h"
#include "resources/ids_title_block.h"
#include "resources/ids_urls.h"
#include "resources/ids_users.h"
#include "resources/ids_version.h"
#include "resources/ids_watermark_integrity.h"
#include "resources/ids_watermark_placement.h"
#include "resources/ids_weighting.h"

// Entries of lists on several pages
#define IDS_ALWAYS 5300
#define IDS_NEVER 5301
#define IDS_USER_DEFINED 5302

#endif
