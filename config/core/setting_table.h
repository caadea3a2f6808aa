#pragma once

#include "config/core/compact_text.h"
#include "config/core/text_arena.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
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

/// One configuration variable as a table holds it. The texts belong to the table and are valid
/// until the variable is changed or the table is cleared.
struct SettingRecord {
    CompactView name;
    CompactView value;   ///< After the file's operators were applied; list items are separated by ";".
    CompactView comment; ///< The lines above the variable, each ended by "\n"; may be empty.
    std::int32_t kind;
};

/// A map from variable name to record, in ordinal order of the names' 16-bit units.
///
/// Made for whole files: the texts lie in an arena, in 8 bits a unit where they can. Names that
/// come in order, as in a file that was saved, are found by bisection; else by hash, and the order is
/// only established when it is asked for. Names and comments never change once inserted.
class SettingTable
{
  public:
    /// Stands for a variable while the table is not cleared.
    using Index = std::uint32_t;
    static constexpr Index kNone = 0xFFFFFFFF;

    /// The variable of that name (case-sensitive), kNone when there is none.
    Index Find(CompactView name) const;

    /// The record of a variable that was found.
    SettingRecord At(Index index) const;

    /// Adds a variable whose name is not in the table yet.
    Index Insert(CompactView name, CompactView value, std::int32_t kind, CompactView comment);

    /// Replaces a variable's value and kind. The value may be a part of the present one.
    void SetValue(Index index, CompactView value, std::int32_t kind);

    /// Puts text before and after a variable's value and sets its kind. Takes time in
    /// proportion to the added text (amortised), so that lists grow line by line cheaply.
    /// The added text may be a part of the present value.
    void ExtendValue(Index index, CompactView before, CompactView after, std::int32_t kind);

    /// The number of variables.
    std::size_t Count() const
    {
        return m_chunks.empty() ? 0 : (m_chunks.size() - 1) * kChunkLength + m_chunks.back().size();
    }

    /// At least the number of bytes that the variables' texts take, and not much more.
    std::size_t TextBytes() const { return m_arena.Total(); }

    /// Calls the function with every record in ordinal order of the names, until it returns false.
    void VisitInOrder(const std::function<bool(const SettingRecord&)>& visit) const;

  private:
    /// The value lies in a block that may have room on both sides of it.
    struct Entry {
        CompactView name;
        CompactView comment;
        char* value;
        std::size_t valueLength;  ///< In units.
        std::uint32_t roomBefore; ///< In bytes.
        std::uint32_t roomAfter;  ///< In bytes; may be counted too small.
        std::int32_t kind;
        bool narrowValue;

        CompactView Value() const;
        void PutValue(CompactView text, bool narrow, char* room);
    };
    /// How a name is sorted: what follows the beginning that all names share, as a number.
    struct SortKey {
        std::uint64_t following;
        Index index;
    };

    /// A place of the hash table; the hash is kept so that growing does not read the names.
    struct Slot {
        std::uint32_t hash;
        Index index;
    };
    /// Entries lie in chunks of so many, so that growing neither moves them nor doubles the memory.
    static constexpr std::size_t kChunkLength = 256;

    Entry& EntryAt(Index index) { return m_chunks[index / kChunkLength][index % kChunkLength]; }
    const Entry& EntryAt(Index index) const { return m_chunks[index / kChunkLength][index % kChunkLength]; }
    Index FindInOrder(CompactView name) const;
    Index FindByHash(CompactView name) const;
    std::vector<SortKey> SortedKeys() const;
    std::size_t SharedBeginning() const;
    CompactView Keep(CompactView text);
    void AddSlot(std::uint32_t hash, Index index);
    static void PlaceSlot(const Slot& slot, std::vector<Slot>& slots);

    TextArena m_arena;
    std::vector<std::vector<Entry>> m_chunks;
    bool m_inOrder = true; ///< Every name was inserted behind the one before it.
    /// Made when the names are no longer in order: a power of two of places, at most three quarters
    /// of them taken.
    std::vector<Slot> m_slots;
};

} // namespace ov
