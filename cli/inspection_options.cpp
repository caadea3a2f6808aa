#include "cli/inspection_options.h"

#include "cli/machine.h"
#include "cli/options.h"

#include <charconv>
#include <string_view>

namespace ov::cli
{
namespace
{

/// The number that the digits represent; -1 if there is any other character.
int NumberOf(std::string_view digits)
{
    int number = -1;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return result.ptr == digits.data() + digits.size() ? number : -1;
}

std::chrono::year_month_day DayOf(const std::string& text)
{
    using namespace std::chrono;
    if (text.size() == 10 && text[4] == '-' && text[7] == '-') {
        const std::string_view view(text);
        const int yearNumber = NumberOf(view.substr(0, 4));
        const int monthNumber = NumberOf(view.substr(5, 2));
        const int dayNumber = NumberOf(view.substr(8, 2));
        if (yearNumber >= 1970 && monthNumber > 0 && dayNumber > 0) {
            const year_month_day date{year(yearNumber), month(static_cast<unsigned>(monthNumber)),
                                      day(static_cast<unsigned>(dayNumber))};
            if (date.ok())
                return date;
        }
    }
    throw Usage("--today: '" + text + "' is no day from 1970 on in the form YYYY-MM-DD");
}

} // namespace

void InspectionOptions::Declare(Options& options)
{
    options.Text("--defaults", "FILE", m_defaultsPath, "The defaults file that the dialog is opened with");
    options.Text("--today", "YYYY-MM-DD", m_today, "The day that an open scan period ends with");
    m_encoding.Declare(options);
}

std::optional<InspectionSettings> InspectionOptions::Settings(InputReader& reader)
{
    InspectionSettings settings;
    settings.rules.Clear();
    settings.today = m_today ? DayOf(*m_today) : Today();
    settings.header.machine = HeaderOfMachine();
    settings.pathExists = PathExists;
    if (m_defaultsPath) {
        m_defaults = reader.Read(*m_defaultsPath);
        if (!m_defaults)
            return std::nullopt;
        settings.defaults = FileBytesView{m_defaults->bytes, m_defaults->charset};
    }
    return settings;
}

} // namespace ov::cli
