#include "inspect/core/dialog_model.h"

#include "config/core/config_reader.h"
#include "pages/core/page_catalogue.h"

#include <algorithm>

namespace ov
{
namespace
{
bool IsAscii(std::string_view bytes)
{
    return std::ranges::all_of(bytes, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}
} // namespace

DialogModel::DialogModel(std::optional<FileBytesView> defaults, std::chrono::year_month_day today)
{
    for (const PageRows* rows : AllPageRows())
        m_newPages.emplace_back(*rows, today);
    if (!defaults)
        return;
    if (!IsAscii(defaults->bytes))
        m_defaultsCharset = defaults->charset;
    ReadConfig(m_store, kDefaultTable, defaults->bytes, defaults->charset);
    for (ShownPage& page : m_newPages)
        page.Load(m_store, kDefaultTable);
}

void DialogModel::Open(const FileBytesView& current)
{
    // The file's own characters decide its encoding. A file in pure ASCII gets the encoding
    // of the defaults, because their comments may be added to it.
    m_charset = m_defaultsCharset && IsAscii(current.bytes) ? *m_defaultsCharset : current.charset;
    // Reading an empty file would leave the table unchanged.
    m_store.Replace(kCurrentTable, SettingTable());
    ReadConfig(m_store, kCurrentTable, current.bytes, current.charset);
    m_pages = m_newPages;
    for (ShownPage& page : m_pages)
        page.Load(m_store, kCurrentTable);
}

void DialogModel::SavePages()
{
    for (ShownPage& page : m_pages)
        page.Save(m_store);
}

WriteResult DialogModel::Write(const HeaderInfo& header, std::string& bytes) const
{
    return WriteConfig(m_store, MakeHeader(header), bytes, m_charset);
}

} // namespace ov
