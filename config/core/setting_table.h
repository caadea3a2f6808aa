#pragma once

#include "base/text.h"
#include "config/core/text_arena.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <vector>

namespace ov
{

/// What a value is. Only SettingKindText decides how a value is written (in double quotes).
enum SettingKind : std::int32_t {
    SettingKindText = 1,    ///< Text and lists.
    SettingKindPath = 2,    ///< A file or folder, or another text that is written without quotes.
    SettingKindInteger = 3, ///< A whole number or a choice.
    SettingKindFlag = 4,    ///< "1" or "0".
    SettingKindReal = 5,    ///< A number with a decimal point.
};

/// One configuration variable as a table holds it. The texts belong to the table and stand
/// until the variable is changed or the table is cleared.
struct SettingRecord {
    TextView name;
    TextView value;   ///< After the file's operators were applied; list items stand between ";".
    TextView comment; ///< The lines above the variable, each ended by "\n"; may be empty.
    std::int32_t kind;
};

/// A map from variable name to record, in ordinal order of the names' 16-bit units.
///
/// Made for whole files: the texts lie in an arena, names are found by hash, and the order is
/// only established when it is asked for. Names and comments never change once inserted.
class SettingTable
{
  public:
    /// Stands for a variable while the table is not cleared.
    using Index = std::uint32_t;
    static constexpr Index kNone = 0xFFFFFFFF;

    /// The variable of that name (case-sensitive), kNone when there is none.
    Index Find(TextView name) const;

    /// The record of a variable that was found.
    SettingRecord At(Index index) const;

    /// Adds a variable whose name is not in the table yet.
    Index Insert(TextView name, TextView value, std::int32_t kind, TextView comment);

    /// Replaces a variable's value and kind. The value may be a part of the present one.
    void SetValue(Index index, TextView value, std::int32_t kind);

    /// Puts text before and after a variable's value and sets its kind. Takes time in
    /// proportion to the added text (amortised), so that lists grow line by line cheaply.
    /// The added text must not lie in this table.
    void ExtendValue(Index index, TextView before, TextView after, std::int32_t kind);

    /// The number of variables.
    std::size_t Count() const { return m_entries.size(); }

    /// Calls the function with every record in ordinal order of the names, until it returns false.
    void VisitInOrder(const std::function<bool(const SettingRecord&)>& visit) const;

  private:
    struct Entry {
        const char16_t* name;
        const char16_t* comment;
        char16_t* block; ///< Where the value lies, with room before and after it.
        std::uint32_t nameLength;
        std::uint32_t commentLength;
        std::uint32_t blockLength;
        std::uint32_t valueOffset;
        std::uint32_t valueLength;
        std::int32_t kind;
    };
    /// A place of the hash table; the hash is kept so that growing does not read the names.
    struct Slot {
        std::uint32_t hash;
        Index index;
    };

    TextView NameOf(const Entry& entry) const { return {entry.name, entry.nameLength}; }
    const char16_t* Keep(TextView text);
    void GrowSlots();

    TextArena m_arena;
    std::deque<Entry> m_entries;
    std::vector<Slot> m_slots; ///< A power of two of places, at most three quarters of them taken.
    bool m_insertedInOrder = true;
};

} // namespace ov
