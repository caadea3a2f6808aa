#pragma once

#include "base/locale_text.h"
#include "config/core/config_writer.h"
#include "config/core/setting_store.h"
#include "inspect/core/shown_page.h"

#include <chrono>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ov
{

/// The bytes of a configuration file and the encoding for reading them.
struct FileBytesView {
    std::string_view bytes;
    Charset charset;
};

/// The state of the dialog after opening two files, without windows: the store and
/// every page. Opening several files with one object is cheaper than creating an
/// object for each.
class DialogModel
{
  public:
    /// The dialog before it reads the current file. Without `defaults` there is no
    /// defaults file. `today` is the end of a scan period without an end date.
    DialogModel(std::optional<FileBytesView> defaults, std::chrono::year_month_day today);

    /// Reads the current file. Discards the state of an earlier one.
    void Open(const FileBytesView& current);

    const SettingStore& Store() const { return m_store; }

    /// The pages in the order of saving.
    std::span<const ShownPage> Pages() const { return m_pages; }

    /// Every page writes its settings into the store, as Save does after a change was
    /// made and undone.
    void SavePages();

    /// Creates the bytes that Save then writes, in the encoding of the opened file.
    WriteResult Write(const HeaderInfo& header, std::string& bytes) const;

    /// The encoding that Save uses.
    Charset Encoding() const { return m_charset; }

  private:
    SettingStore m_store;
    std::vector<ShownPage> m_newPages; ///< the pages before the current file is read
    std::vector<ShownPage> m_pages;
    std::optional<Charset> m_defaultsCharset;
    Charset m_charset = Charset::Windows1252;
};

} // namespace ov
