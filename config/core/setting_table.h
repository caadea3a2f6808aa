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

/// The kind of a value. Only SettingKindText affects how a value is written (in double quotes).
enum SettingKind : std::int32_t {
    SettingKindText = 1,    ///< Text and lists.
    SettingKindPath = 2,    ///< A file or folder, or other text that is written without quotes.
    SettingKindInteger = 3, ///< A whole number or a choice.
    SettingKindFlag = 4,    ///< "1" or "0".
    SettingKindReal = 5,    ///< A number with a decimal point.
};

/// One configuration variable in a table. The texts belong to the table and are valid
/// until the variable is changed or the table is cleared.
struct SettingRecord {
    CompactView name;
    CompactView value;   ///< After applying the file's operators; list items are separated by ";".
    CompactView comment; ///< The lines above the variable, each ending with "\n"; may be empty.
    std::int32_t kind;
};

/// A map from variable name to record, in ordinal order of the names' 16-bit units.
///
/// Designed for whole files: the texts are stored in an arena, in 8-bit units where possible. Names
/// inserted in order, as from a saved file, are found by binary search, others by hash; the order is
/// then only established on request. Names and comments never change after insertion.
class SettingTable
{
  public:
    /// Identifies a variable until the table is cleared.
    using Index = std::uint32_t;
    static constexpr Index kNone = 0xFFFFFFFF;

    /// The variable of that name (case-sensitive), or kNone.
    Index Find(CompactView name) const;

    /// The record of an existing variable.
    SettingRecord At(Index index) const;

    /// Adds a variable whose name is not in the table yet.
    Index Insert(CompactView name, CompactView value, std::int32_t kind, CompactView comment);

    /// Replaces a variable's value and kind. The value may be a part of the present one.
    void SetValue(Index index, CompactView value, std::int32_t kind);

    /// Adds text before and after a variable's value and sets its kind. The cost is proportional to
    /// the added text (amortised), so lists can grow line by line.
    /// The added text may be a part of the present value.
    void ExtendValue(Index index, CompactView before, CompactView after, std::int32_t kind);

    /// The number of variables.
    std::size_t Count() const
    {
        return m_chunks.empty() ? 0 : (m_chunks.size() - 1) * kChunkLength + m_chunks.back().size();
    }

    /// An upper bound, close to the actual number, of the bytes that the variables' texts occupy.
    std::size_t TextBytes() const { return m_arena.Total(); }

    /// Calls the function with every record in ordinal order of the names, until it returns false.
    void VisitInOrder(const std::function<bool(const SettingRecord&)>& visit) const;

  private:
    /// The value is in a block that may have room on both sides of it.
    struct Entry {
        CompactView name;
        CompactView comment;
        char* value;
        std::size_t valueLength;  ///< In units.
        std::uint32_t roomBefore; ///< In bytes.
        std::uint32_t roomAfter;  ///< In bytes; may be less than the actual room.
        std::int32_t kind;
        bool narrowValue;

        CompactView Value() const;
        void PutValue(CompactView text, bool narrow, char* room);
    };
    /// The sort key of a name: the characters after the beginning that all names share, as a number.
    struct SortKey {
        std::uint64_t following;
        Index index;
    };

    /// A slot of the hash table. The hash is stored so that growing does not access the names.
    struct Slot {
        std::uint32_t hash;
        Index index;
    };
    /// Entries are stored in chunks of this length, so that growing does not move or copy them.
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
    bool m_inOrder = true; ///< True while every name was inserted after all smaller ones.
    /// Created when the names are no longer in order. The size is a power of two; at most three quarters
    /// of the slots are used.
    std::vector<Slot> m_slots;
};

} // namespace ov
