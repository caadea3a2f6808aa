#include "launch/core/asked_files.h"

#include <algorithm>

namespace ov
{
namespace
{

constexpr std::size_t kStateDigits = 16;
constexpr std::string_view kNever = "never ";

bool IsState(std::string_view text)
{
    return text.size() == kStateDigits &&
           text.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

// Names with line breaks could not be read again.
bool IsStorable(const Text& key)
{
    return !key.empty() && std::ranges::none_of(key, [](char16_t c) { return c < u' '; });
}

} // namespace

AskedFiles AskedFiles::Parse(std::string_view text)
{
    AskedFiles asked;
    while (!text.empty() && asked.m_files.size() < kMostFiles) {
        std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        const bool never = line.starts_with(kNever);
        if (never)
            line.remove_prefix(kNever.size());
        const std::size_t tab = line.find('\t');
        if (tab == std::string_view::npos || !IsState(line.substr(0, tab)))
            continue;
        Text key = TextFromUtf8(line.substr(tab + 1));
        if (IsStorable(key) && asked.Find(key) == nullptr)
            asked.m_files.push_back({std::move(key), TextFromUtf8(line.substr(0, tab)), never});
    }
    return asked;
}

std::string AskedFiles::Format() const
{
    std::string text;
    for (const AskedFile& file : m_files) {
        if (file.never)
            text += kNever;
        text += Utf8FromText(file.state) + '\t' + Utf8FromText(file.key) + '\n';
    }
    return text;
}

bool AskedFiles::ShouldAsk(const Text& key, const FileLook& look) const
{
    if (!look.HasRemarks())
        return false;
    const AskedFile* const file = Find(key);
    if (file == nullptr)
        return true;
    return file->state != look.state && (!file->never || look.interrupted.found);
}

void AskedFiles::Remember(const Text& key, const Text& state)
{
    const AskedFile* const known = Find(key);
    Put({key, state, known != nullptr && known->never});
}

void AskedFiles::NeverAsk(const Text& key, const Text& state)
{
    Put({key, state, true});
}

void AskedFiles::Forget(const Text& key)
{
    std::erase_if(m_files, [&](const AskedFile& file) { return file.key == key; });
}

const AskedFiles::AskedFile* AskedFiles::Find(const Text& key) const
{
    const auto file = std::ranges::find(m_files, key, &AskedFile::key);
    return file == m_files.end() ? nullptr : &*file;
}

void AskedFiles::Put(AskedFile file)
{
    Forget(file.key);
    if (!IsStorable(file.key))
        return;
    m_files.insert(m_files.begin(), std::move(file));
    m_files.resize(std::min(m_files.size(), kMostFiles));
}

} // namespace ov
