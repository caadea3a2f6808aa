#pragma once

#include <optional>
#include <span>
#include <vector>

#include "base/text.h"
#include "config/core/save.h"
#include "config/core/setting_store.h"
#include "config/win32_file_port.h"

/// The configuration file on disk, as the dialog sees it: it asks for a path
/// where one is missing and shows why a file could not be opened.
class CTextFileEx
{
  public:
    /// `extension` without its dot is what the file chooser appends.
    explicit CTextFileEx(ov::Text extension);
    virtual ~CTextFileEx();
    CTextFileEx(const CTextFileEx&) = delete;
    CTextFileEx& operator=(const CTextFileEx&) = delete;

    /// Lets the user choose a configuration file, to be opened or to be
    /// saved. True with the full path when they confirmed.
    virtual bool BrowseForFile(bool save, ov::Text& path);

    /// Replaces `lines` by the file's lines; asks for a file when the path is
    /// empty. False when the user cancelled or, after a message, when the
    /// file could not be read; `lines` is as it was then.
    bool ReadLines(ov::Text path, std::vector<ov::Text>& lines);

    /// Writes each text followed by a line end, in place of what the file held;
    /// asks for a file when the path is empty. False without a message when it
    /// could not.
    bool WriteLines(ov::Text path, std::span<const ov::Text> lines);

    /// Reads the file into a table of the store (0 = current, 1 = defaults).
    /// False, with the store unchanged, when the path is empty or leads to no
    /// file, or after a message when the file could not be read.
    bool ReadSettings(ov::SettingStore& store, int table, const ov::Text& path);

    /// Writes the current table behind a temporary backup. A file whose content
    /// is not what was last read into the current table, or saved, is replaced
    /// only after a question.
    ov::SaveResult SaveSettings(const ov::SettingStore& store, const ov::Text& path,
                                ov::SaveSurroundings& surroundings, ov::SavePrompts& prompts);

    /// The system's words for the last failure; empty after a success.
    const ov::Text& GetLastError() const { return m_lastError; }

  private:
    bool Tell(const ov::Text& systemText);

    ov::Text m_lastError;
    ov::Text m_extension;
    CWin32FilePort m_files;
    std::optional<ov::KnownFile> m_known;
};
