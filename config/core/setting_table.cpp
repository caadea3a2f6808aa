#include "config/core/setting_table.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <stdexcept>

namespace ov
{
namespace
{

using Traits = std::char_traits<char16_t>;

std::uint32_t HashOf(TextView name)
{
    const std::size_t hash = std::hash<TextView>()(name);
    return static_cast<std::uint32_t>(hash ^ (hash >> 32));
}

std::uint32_t Length32(std::size_t length)
{
    if (length > std::numeric_limits<std::uint32_t>::max())
        throw std::length_error("A setting is longer than a table can hold");
    return static_cast<std::uint32_t>(length);
}

} // namespace

SettingTable::Index SettingTable::Find(TextView name) const
{
    if (m_slots.empty())
        return kNone;
    const std::uint32_t hash = HashOf(name);
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t place = hash & mask;; place = (place + 1) & mask) {
        const Slot& slot = m_slots[place];
        if (slot.index == kNone)
            return kNone;
        if (slot.hash == hash && NameOf(m_entries[slot.index]) == name)
            return slot.index;
    }
}

SettingRecord SettingTable::At(Index index) const
{
    const Entry& entry = m_entries[index];
    return {NameOf(entry),
            {entry.block + entry.valueOffset, entry.valueLength},
            {entry.comment, entry.commentLength},
            entry.kind};
}

SettingTable::Index SettingTable::Insert(TextView name, TextView value, std::int32_t kind, TextView comment)
{
    if ((m_entries.size() + 1) * 4 > m_slots.size() * 3)
        GrowSlots();
    if (!m_entries.empty() && name < NameOf(m_entries.back()))
        m_insertedInOrder = false;

    Entry entry{};
    entry.nameLength = Length32(name.size());
    entry.commentLength = Length32(comment.size());
    entry.valueLength = Length32(value.size());
    entry.blockLength = entry.valueLength;
    entry.kind = kind;
    entry.name = Keep(name);
    entry.comment = Keep(comment);
    entry.block = m_arena.Allocate(value.size());
    Traits::copy(entry.block, value.data(), value.size());

    const auto index = static_cast<Index>(m_entries.size());
    m_entries.push_back(entry);
    const std::uint32_t hash = HashOf(name);
    const std::size_t mask = m_slots.size() - 1;
    std::size_t place = hash & mask;
    while (m_slots[place].index != kNone)
        place = (place + 1) & mask;
    m_slots[place] = {hash, index};
    return index;
}

void SettingTable::SetValue(Index index, TextView value, std::int32_t kind)
{
    Entry& entry = m_entries[index];
    const std::uint32_t length = Length32(value.size());
    if (length > entry.blockLength) {
        char16_t* block = m_arena.Allocate(length);
        Traits::copy(block, value.data(), length);
        entry.block = block;
        entry.blockLength = length;
    } else {
        Traits::move(entry.block, value.data(), length);
    }
    entry.valueOffset = 0;
    entry.valueLength = length;
    entry.kind = kind;
}

void SettingTable::ExtendValue(Index index, TextView before, TextView after, std::int32_t kind)
{
    Entry& entry = m_entries[index];
    const std::size_t length = before.size() + entry.valueLength + after.size();
    const std::size_t roomBefore = entry.valueOffset;
    const std::size_t roomAfter = entry.blockLength - entry.valueOffset - entry.valueLength;
    if (before.size() > roomBefore || after.size() > roomAfter) {
        // Room as large as the value on the side that ran out; the other side keeps its room, so
        // that a list growing at both ends does not move at every line.
        const std::size_t newBefore = before.size() > roomBefore ? length : std::min(roomBefore, length);
        const std::size_t newAfter = after.size() > roomAfter ? length : std::min(roomAfter, length);
        const std::uint32_t blockLength = Length32(newBefore + length + newAfter);
        char16_t* block = m_arena.Allocate(blockLength);
        const std::size_t offset = newBefore + before.size();
        Traits::copy(block + offset, entry.block + entry.valueOffset, entry.valueLength);
        entry.block = block;
        entry.blockLength = blockLength;
        entry.valueOffset = static_cast<std::uint32_t>(offset);
    }
    Traits::copy(entry.block + entry.valueOffset + entry.valueLength, after.data(), after.size());
    entry.valueOffset -= static_cast<std::uint32_t>(before.size());
    Traits::copy(entry.block + entry.valueOffset, before.data(), before.size());
    entry.valueLength = static_cast<std::uint32_t>(length);
    entry.kind = kind;
}

void SettingTable::VisitInOrder(const std::function<bool(const SettingRecord&)>& visit) const
{
    std::vector<Index> order(m_entries.size());
    std::iota(order.begin(), order.end(), Index{0});
    if (!m_insertedInOrder) {
        std::sort(order.begin(), order.end(),
                  [this](Index a, Index b) { return NameOf(m_entries[a]) < NameOf(m_entries[b]); });
    }
    for (const Index index : order) {
        if (!visit(At(index)))
            return;
    }
}

const char16_t* SettingTable::Keep(TextView text)
{
    char16_t* room = m_arena.Allocate(text.size());
    Traits::copy(room, text.data(), text.size());
    return room;
}

void SettingTable::GrowSlots()
{
    std::vector<Slot> grown(std::max<std::size_t>(16, m_slots.size() * 2), Slot{0, kNone});
    const std::size_t mask = grown.size() - 1;
    for (const Slot& slot : m_slots) {
        if (slot.index == kNone)
            continue;
        std::size_t place = slot.hash & mask;
        while (grown[place].index != kNone)
            place = (place + 1) & mask;
        grown[place] = slot;
    }
    m_slots = std::move(grown);
}

} // namespace ov
