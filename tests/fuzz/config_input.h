#pragma once

#include "config/core/setting_store.h"
#include "tests/fuzz/fuzz_input.h"
#include "tests/fuzz/literal_config.h"

#include <clocale>
#include <string_view>

namespace ov::fuzz
{

/// The part of the bytes before a line "=====" and the part after it; all and nothing without one.
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

/// Sets how the process spells characters: 0 as single bytes, 1 as UTF-8.
inline void UseLocale(unsigned which)
{
    static unsigned s_used = 0;
    if (which == s_used)
        return;
    OV_REQUIRE(std::setlocale(LC_CTYPE, which == 0 ? "C" : "C.UTF-8") != nullptr);
    s_used = which;
}

/// What a table of the store holds.
inline LiteralTable TableOf(const SettingStore& store, int selector)
{
    LiteralTable table;
    store.VisitInOrder(selector, [&table](const SettingRecord& record) {
        // The names come in ascending order, none of them twice.
        OV_REQUIRE(table.empty() || table.rbegin()->first < record.name);
        table.emplace(record.name, LiteralRecord{Text(record.value), Text(record.comment), record.kind});
        return true;
    });
    return table;
}

} // namespace ov::fuzz
