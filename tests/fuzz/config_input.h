#pragma once

#include "config/core/setting_store.h"
#include "tests/fuzz/fuzz_input.h"
#include "tests/fuzz/literal_config.h"

#include <clocale>
#include <string_view>

namespace ov::fuzz
{

/// The bytes before a line "=====" and those after it. Without such a line, all bytes and none.
struct TwoFiles {
    std::string_view first;
    std::string_view second;
    bool both = false;

    explicit TwoFiles(std::string_view bytes) : first(bytes)
    {
        constexpr std::string_view kBetween = "=====\n";
        std::size_t at = bytes.find(kBetween);
        while (at != std::string_view::npos && at > 0 && bytes[at - 1] != '\n')
            at = bytes.find(kBetween, at + 1);
        if (at == std::string_view::npos)
            return;
        first = bytes.substr(0, at);
        second = bytes.substr(at + kBetween.size());
        both = true;
    }
};

/// Sets the locale's encoding: 0 for single bytes, 1 for UTF-8.
inline void UseLocale(unsigned which)
{
    static unsigned s_used = 0;
    if (which == s_used)
        return;
    OV_REQUIRE(std::setlocale(LC_CTYPE, which == 0 ? "C" : "C.UTF-8") != nullptr);
    s_used = which;
}

/// The content of a table of the store.
inline LiteralTable TableOf(const SettingStore& store, TableSelector selector)
{
    LiteralTable table;
    store.VisitInOrder(selector, [&table](const SettingRecord& record) {
        // The names are in ascending order without duplicates.
        OV_REQUIRE(table.empty() || table.rbegin()->first < record.name);
        table.emplace(record.name, LiteralRecord{Text(record.value), Text(record.comment), record.kind});
        return true;
    });
    return table;
}

} // namespace ov::fuzz
