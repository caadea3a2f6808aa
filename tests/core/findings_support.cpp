#include "tests/core/findings_support.h"

namespace findings
{

std::vector<ov::Finding> FindingsOf(ov::RuleId rule, const std::string& bytes,
                                    const std::optional<std::string>& defaults)
{
    using namespace std::chrono;
    ov::InspectionSettings settings;
    settings.rules.Clear();
    settings.rules.Set(ov::RuleOf(rule).id, true);
    settings.today = year_month_day(year(2026), month(11), day(20));
    settings.header.machine = {u"Friday 20 November 2026, 19:12:00", u"J. Reeve", u"CAD-07"};
    settings.pathExists = [](const ov::Text& path) { return path == u"/there"; };
    if (defaults)
        settings.defaults = ov::FileBytesView{*defaults, ov::DetectCharset(*defaults)};
    return ov::Inspector(settings).Inspect(ov::InspectedFile(bytes, ov::DetectCharset(bytes)));
}

std::vector<std::string> PlacesOf(ov::RuleId rule, const std::string& bytes,
                                  const std::optional<std::string>& defaults)
{
    std::vector<std::string> places;
    for (const ov::Finding& finding : FindingsOf(rule, bytes, defaults))
        places.push_back(std::to_string(finding.line) + ":" + std::to_string(finding.column));
    return places;
}

} // namespace findings
