#include "config/text_file.h"

#include "config/core/config_reader.h"
#include "config/core/file_lines.h"
#include "framework/afxwin.h"
#include "resources/ids.h"

#include <utility>

CTextFileEx::CTextFileEx(ov::Text extension) : m_extension(std::move(extension)) {}

CTextFileEx::~CTextFileEx() = default;

bool CTextFileEx::BrowseForFile(bool save, ov::Text& path)
{
    const ov::Text filter = AfxLoadString(IDS_CONFIG_FILE_FILTER);
    CFileDialog chooser(!save, Wide(m_extension), nullptr,
                        OFN_EXPLORER | OFN_ENABLESIZING | OFN_HIDEREADONLY | OFN_FILEMUSTEXIST, Wide(filter),
                        nullptr);
    if (chooser.DoModal() != IDOK)
        return false;
    path = chooser.GetPathName();
    return true;
}

bool CTextFileEx::Tell(const ov::Text& systemText)
{
    m_lastError = systemText;
    AfxShowMessageBox(nullptr, m_lastError, ov::Text(),
                      MB_OK | MB_ICONWARNING | MB_SETFOREGROUND | MB_TOPMOST);
    return false;
}

bool CTextFileEx::ReadLines(ov::Text path, std::vector<ov::Text>& lines)
{
    m_lastError.clear();
    if (path.empty() && !BrowseForFile(false, path))
        return false;
    const ov::FileResult result = ov::ReadLines(m_files, path, lines);
    return result ? true : Tell(result.systemText);
}

bool CTextFileEx::WriteLines(ov::Text path, std::span<const ov::Text> lines)
{
    m_lastError.clear();
    if (path.empty() && !BrowseForFile(true, path))
        return false;
    const ov::FileResult result = ov::WriteLines(m_files, path, lines);
    m_lastError = result.systemText;
    return result.ok;
}

bool CTextFileEx::ReadSettings(ov::SettingStore& store, ov::TableSelector table, const ov::Text& path)
{
    m_lastError.clear();
    const ov::ReadResult result =
        ov::ReadConfigFile(store, table, path, m_files, table == ov::kCurrentTable ? &m_known : nullptr);
    if (result.outcome == ov::ReadOutcome::Failed)
        return Tell(result.systemText);
    return result.outcome == ov::ReadOutcome::Read;
}

ov::SaveResult CTextFileEx::SaveSettings(const ov::SettingStore& store, const ov::Text& path,
                                         ov::SaveSurroundings& surroundings, ov::SavePrompts& prompts)
{
    m_lastError.clear();
    ov::SaveResult result = ov::SaveConfigFile(store, path, m_known, m_files, surroundings, prompts);
    m_lastError = result.systemText;
    return result;
}
