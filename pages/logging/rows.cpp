#include "pages/logging/rows.h"

#include "pages/core/layout_flags.h"
#include "resources/page_ids.h"

namespace ov
{
namespace
{
constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_REPORT_TRACKING", IDC_LOGGING_TRACKING, IDS_HELP_LOGGING_TRACKING),
    // The one variable of the program whose name has no underscore in front.
    TextRow(u"ORTHOVAL_LOG_FILE_MAXSIZE", SettingKindInteger, IDC_LOGGING_MAX_SIZE,
            IDS_HELP_LOGGING_MAX_SIZE),
    ChoiceRow(u"_ORTHOVAL_LOG_FILE_DEBUGLEVEL", Encoding::Number, ControlKind::DropDownList,
              IDC_LOGGING_DEBUG_LEVEL, IDS_HELP_LOGGING_DEBUG_LEVEL, 0),
};

constexpr LayoutRow layout[] = {
    {IDC_LOGGING_TRACKING, kFixed},        {IDC_LOGGING_MAX_SIZE_LABEL, kFixed},
    {IDC_LOGGING_MAX_SIZE, kFixed},        {IDC_LOGGING_MAX_SIZE_SPIN, kFixed},
    {IDC_LOGGING_DEBUG_FRAME, kStretched}, {IDC_LOGGING_DEBUG_LEVEL_LABEL, kFixed},
    {IDC_LOGGING_DEBUG_LEVEL, kFixed},
};

constexpr unsigned debugLevels[] = {IDS_LOGGING_DEBUG_LEVEL_0, IDS_LOGGING_DEBUG_LEVEL_1,
                                    IDS_LOGGING_DEBUG_LEVEL_2};

constexpr EntriesRow entries[] = {
    {IDC_LOGGING_DEBUG_LEVEL, debugLevels},
};

constexpr SpinRow spins[] = {
    {IDC_LOGGING_MAX_SIZE_SPIN, IDC_LOGGING_MAX_SIZE, 0, 102400},
};

constexpr PageRows rows = {
    .pageId = 14,
    .settings = settings,
    .extraHelp = {},
    .layout = layout,
    .entries = entries,
    .spins = spins,
};
} // namespace

const PageRows& LoggingRows()
{
    return rows;
}

} // namespace ov
