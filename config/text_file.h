#pragma once

#include "base/text.h"
#include "config/core/save.h"
#include "config/core/setting_store.h"
#include "config/win32_file_port.h"

#include <optional>
#include <span>
#include <vector>

/// The configuration file on disk, for the dialog: asks for a path if none is
/// given, and shows why a file could not be opened.
class CTextFileEx
{
  public:
    /// `extension` is the one that the file chooser appends, without a dot.
    explicit CTextFileEx(ov::Text extension);
    virtual ~CTextFileEx();
    CTextFileEx(const CTextFileEx&) = delete;
    CTextFileEx& operator=(const CTextFileEx&) = delete;

    /// Lets the user choose a configuration file to open or to save. True
    /// with the full path if they confirmed.
    virtual bool BrowseForFile(bool save, ov::Text& path);

    // ReadLines and WriteLines are part of the design's contract and used by tests only.

    /// Replaces `lines` by the file's lines; asks for a file if the path is
    /// empty. False if the user cancelled or, after a message, if the file
    /// could not be read; `lines` is unchanged then.
    bool ReadLines(ov::Text path, std::vector<ov::Text>& lines);

    /// Replaces the file's content by the texts, each followed by a line end;
    /// asks for a file if the path is empty. False, without a message, on
    /// failure.
    bool WriteLines(ov::Text path, std::span<const ov::Text> lines);

    /// Reads the file into a table of the store.
    /// False, with the store unchanged, if the path is empty or is not a file, or
    /// after a message if the file could not be read.
    bool ReadSettings(ov::SettingStore& store, ov::TableSelector table, const ov::Text& path);

    /// Writes the current table, with a temporary backup. Asks before replacing a
    /// file whose content is not what was last read into the current table or
    /// saved.
    ov::SaveResult SaveSettings(const ov::SettingStore& store, const ov::Text& path,
                                ov::SaveSurroundings& surroundings, ov::SavePrompts& prompts);

    /// The system's message for the last failure; empty after a success.
    const ov::Text& GetLastError() const { return m_lastError; }

  private:
    bool Tell(const ov::Text& systemText);

    ov::Text m_lastError;
    ov::Text m_extension;
    CWin32FilePort m_files;
    std::optional<ov::KnownFile> m_known;
};
