#include "pages/core/page_rows.h"
#include "pages/logging/ids.h"

namespace ov
{

constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_REPORT_TRACKING", IDC_LOGGING_TRACKING, IDS_HELP_LOGGING_TRACKING),
    // The only variable of the program without a leading underscore.
    TextRow(u"ORTHOVAL_LOG_FILE_MAXSIZE", SettingKindInteger, IDC_LOGGING_MAX_SIZE,
            IDS_HELP_LOGGING_MAX_SIZE),
    ChoiceRow(u"_ORTHOVAL_LOG_FILE_DEBUGLEVEL", Encoding::Number, ControlKind::DropDownList,
              IDC_LOGGING_DEBUG_LEVEL, IDS_HELP_LOGGING_DEBUG_LEVEL, 0),
};

constexpr LayoutRow layout[] = {
    {IDC_LOGGING_DEBUG_FRAME, kStretched},
};

constexpr unsigned debugLevels[] = {IDS_LOGGING_DEBUG_LEVEL_0, IDS_LOGGING_DEBUG_LEVEL_1,
                                    IDS_LOGGING_DEBUG_LEVEL_2};

constexpr EntriesRow entries[] = {
    {IDC_LOGGING_DEBUG_LEVEL, debugLevels},
};

constexpr SpinRow spins[] = {
    {IDC_LOGGING_MAX_SIZE_SPIN, IDC_LOGGING_MAX_SIZE, 0, 102400},
};

constexpr PageRows kLoggingRows = {
    .info = {.pageId = 14,
             .titleId = IDS_TITLE_LOGGING,
             .templateId = IDD_PAGE_LOGGING,
             .scrollWidth = 400,
             .scrollHeight = 190,
             .constructionRank = 120,
             .listRank = 130},
    .settings = settings,
    .layout = layout,
    .entries = entries,
    .spins = spins,
};

} // namespace ov
