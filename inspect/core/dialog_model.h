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

/// The bytes of a configuration file and the encoding to read them in.
struct FileBytesView {
    std::string_view bytes;
    Charset charset;
};

/// The dialog as it is after it has been opened on two files, without windows: the
/// store and every page. Opening it on one file after the other costs less than
/// making it.
class DialogModel
{
  public:
    /// The dialog before it reads the file to edit. Without defaults there is no
    /// defaults file. `today` is the day that an open scan period ends with.
    DialogModel(std::optional<FileBytesView> defaults, std::chrono::year_month_day today);

    /// Reads the file to edit. What an earlier one left is gone.
    void Open(const FileBytesView& current);

    const SettingStore& Store() const { return m_store; }

    /// The pages in the order in which they are saved.
    std::span<const ShownPage> Pages() const { return m_pages; }

    /// Has every page write its settings into the store, as Save does after one change
    /// was made and taken back.
    void SavePages();

    /// Makes the bytes that Save then writes, in the encoding of the file that was opened.
    WriteResult Write(const HeaderInfo& header, std::string& bytes) const;

    /// The encoding that Save writes in.
    Charset Encoding() const { return m_charset; }

  private:
    SettingStore m_store;
    std::vector<ShownPage> m_newPages; ///< as they are before the file to edit is read
    std::vector<ShownPage> m_pages;
    std::optional<Charset> m_defaultsCharset;
    Charset m_charset = Charset::Windows1252;
};

} // namespace ov
