#include "config/core/setting_table.h"

#include <algorithm>
#include <compare>
#include <limits>
#include <string>
#include <utility>

namespace ov
{
namespace
{

// The hash of a name in the form in which a table stores it.
std::uint32_t HashOf(CompactView name)
{
    const std::size_t hash =
        name.IsNarrow() ? std::hash<std::string_view>()(name.Narrow()) : std::hash<TextView>()(name.Wide());
    return static_cast<std::uint32_t>(hash ^ (hash >> 32));
}

std::uint32_t Counted(std::size_t room)
{
    constexpr std::size_t kHighest = std::numeric_limits<std::uint32_t>::max();
    return static_cast<std::uint32_t>(std::min(room, kHighest));
}

} // namespace

CompactView SettingTable::Entry::Value() const
{
    if (narrowValue)
        return CompactView::OfBytes({value, valueLength});
    return TextView(reinterpret_cast<const char16_t*>(value), valueLength);
}

void SettingTable::Entry::PutValue(CompactView text, bool narrow, char* room)
{
    CopyUnits(text, narrow, room);
    value = room;
    valueLength = text.size();
    narrowValue = narrow;
}

SettingTable::Index SettingTable::Find(CompactView name) const
{
    return m_inOrder ? FindInOrder(name) : FindByHash(name);
}

SettingTable::Index SettingTable::FindInOrder(CompactView name) const
{
    auto end = static_cast<Index>(Count());
    if (end == 0)
        return kNone;
    // In a sorted file the name is either the last one inserted or comes after it.
    const std::strong_ordering order = name <=> EntryAt(end - 1).name;
    if (std::is_gteq(order))
        return std::is_eq(order) ? end - 1 : kNone;
    Index begin = 0;
    while (begin < end) {
        const Index middle = begin + (end - begin) / 2;
        if (EntryAt(middle).name < name)
            begin = middle + 1;
        else
            end = middle;
    }
    return EntryAt(begin).name == name ? begin : kNone;
}

SettingTable::Index SettingTable::FindByHash(CompactView name) const
{
    std::string narrowed;
    if (!name.IsNarrow() && name.FitsNarrow()) {
        narrowed.resize(name.size());
        name = CopyUnits(name, true, narrowed.data());
    }
    const std::uint32_t hash = HashOf(name);
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t place = hash & mask;; place = (place + 1) & mask) {
        const Slot& slot = m_slots[place];
        if (slot.index == kNone)
            return kNone;
        if (slot.hash == hash && EntryAt(slot.index).name == name)
            return slot.index;
    }
}

SettingRecord SettingTable::At(Index index) const
{
    const Entry& entry = EntryAt(index);
    return {entry.name, entry.Value(), entry.comment, entry.kind};
}

SettingTable::Index SettingTable::Insert(CompactView name, CompactView value, std::int32_t kind,
                                         CompactView comment)
{
    const auto index = static_cast<Index>(Count());
    if (index == m_chunks.size() * kChunkLength) {
        std::vector<Entry> chunk;
        chunk.reserve(kChunkLength);
        m_chunks.push_back(std::move(chunk));
    }

    const bool narrow = value.FitsNarrow();
    Entry entry{Keep(name), Keep(comment), nullptr, 0, 0, 0, kind, narrow};
    entry.PutValue(value, narrow, m_arena.Allocate(ByteLength(value, narrow)));
    if (m_inOrder && index > 0 && entry.name < EntryAt(index - 1).name) {
        m_slots.clear();
        for (Index earlier = 0; earlier < index; ++earlier)
            AddSlot(HashOf(EntryAt(earlier).name), earlier);
        m_inOrder = false;
    }
    if (!m_inOrder)
        AddSlot(HashOf(entry.name), index);
    m_chunks.back().push_back(entry);
    return index;
}

void SettingTable::SetValue(Index index, CompactView value, std::int32_t kind)
{
    Entry& entry = EntryAt(index);
    const bool narrow = value.FitsNarrow();
    const std::size_t length = ByteLength(value, narrow);
    char* block = entry.value - entry.roomBefore;
    std::size_t capacity = entry.roomBefore + ByteLength(entry.Value(), entry.narrowValue) + entry.roomAfter;
    if (length > capacity) {
        // At least double the capacity, so that a value that keeps growing leaves little unused memory.
        capacity = std::max(length, capacity * 2);
        block = m_arena.Allocate(capacity);
    }
    entry.PutValue(value, narrow, block);
    entry.roomBefore = 0;
    entry.roomAfter = Counted(capacity - length);
    entry.kind = kind;
}

void SettingTable::ExtendValue(Index index, CompactView before, CompactView after, std::int32_t kind)
{
    Entry& entry = EntryAt(index);
    const bool narrow = entry.narrowValue && before.FitsNarrow() && after.FitsNarrow();
    const std::size_t beforeBytes = ByteLength(before, narrow);
    const std::size_t valueBytes = ByteLength(entry.Value(), narrow);
    const std::size_t afterBytes = ByteLength(after, narrow);
    const bool lacksBefore = beforeBytes > entry.roomBefore;
    const bool lacksAfter = afterBytes > entry.roomAfter;
    if (lacksBefore || lacksAfter || narrow != entry.narrowValue) {
        // The side without room gets as much as the value is long. The other side keeps its room, so that a
        // list growing at both ends does not move with every line.
        constexpr std::size_t kMostRoom = std::size_t{1} << 31;
        const std::size_t length = beforeBytes + valueBytes + afterBytes;
        const std::size_t most = std::min(length, kMostRoom);
        std::size_t roomBefore = lacksBefore ? most : std::min<std::size_t>(entry.roomBefore, most);
        roomBefore += roomBefore % 2; // 16-bit units need even addresses.
        const std::size_t roomAfter = lacksAfter ? most : std::min<std::size_t>(entry.roomAfter, most);
        char* const block = m_arena.Allocate(roomBefore + length + roomAfter);
        entry.PutValue(entry.Value(), narrow, block + roomBefore + beforeBytes);
        entry.roomBefore = Counted(roomBefore);
        entry.roomAfter = Counted(roomAfter);
    } else {
        entry.roomBefore -= Counted(beforeBytes);
        entry.roomAfter -= Counted(afterBytes);
    }
    CopyUnits(after, narrow, entry.value + valueBytes);
    entry.value -= beforeBytes;
    CopyUnits(before, narrow, entry.value);
    entry.valueLength += before.size() + after.size();
    entry.kind = kind;
}

void SettingTable::VisitInOrder(const std::function<bool(const SettingRecord&)>& visit) const
{
    if (m_inOrder) {
        for (Index index = 0; index < Count(); ++index) {
            if (!visit(At(index)))
                return;
        }
        return;
    }
    for (const SortKey& key : SortedKeys()) {
        if (!visit(At(key.index)))
            return;
    }
}

// The names of a file share a long beginning. The characters after it, taken as one number,
// decide nearly every comparison without accessing the names.
std::vector<SettingTable::SortKey> SettingTable::SortedKeys() const
{
    const std::size_t shared = SharedBeginning();
    std::vector<SortKey> keys;
    keys.reserve(Count());
    for (Index index = 0; index < Count(); ++index) {
        const CompactView name = EntryAt(index).name;
        std::uint64_t following = 0;
        bool fits = true; // A unit beyond 8 bits counts as 0xFF and ends the number.
        for (std::size_t i = shared; i < shared + sizeof following; ++i) {
            const unsigned unit = fits && i < name.size() ? name[i] : 0;
            fits = fits && unit < 0xFF;
            following = following << 8 | std::min(unit, 0xFFU);
        }
        keys.push_back({following, index});
    }
    std::sort(keys.begin(), keys.end(), [this](const SortKey& a, const SortKey& b) {
        return a.following != b.following ? a.following < b.following
                                          : EntryAt(a.index).name < EntryAt(b.index).name;
    });
    return keys;
}

std::size_t SettingTable::SharedBeginning() const
{
    const CompactView first = EntryAt(0).name;
    std::size_t shared = first.size();
    for (Index index = 1; index < Count(); ++index) {
        const CompactView name = EntryAt(index).name;
        std::size_t length = 0;
        while (length < shared && length < name.size() && name[length] == first[length])
            ++length;
        shared = length;
    }
    return shared;
}

CompactView SettingTable::Keep(CompactView text)
{
    const bool narrow = text.FitsNarrow();
    return CopyUnits(text, narrow, m_arena.Allocate(ByteLength(text, narrow)));
}

void SettingTable::AddSlot(std::uint32_t hash, Index index)
{
    if ((std::size_t{index} + 1) * 4 > m_slots.size() * 3) {
        std::vector<Slot> grown(std::max<std::size_t>(16, m_slots.size() * 2), Slot{0, kNone});
        for (const Slot& slot : m_slots) {
            if (slot.index != kNone)
                PlaceSlot(slot, grown);
        }
        m_slots = std::move(grown);
    }
    PlaceSlot({hash, index}, m_slots);
}

void SettingTable::PlaceSlot(const Slot& slot, std::vector<Slot>& slots)
{
    const std::size_t mask = slots.size() - 1;
    std::size_t place = slot.hash & mask;
    while (slots[place].index != kNone)
        place = (place + 1) & mask;
    slots[place] = slot;
}

} // namespace ov
