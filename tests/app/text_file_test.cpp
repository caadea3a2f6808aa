#include "config/text_file.h"
#include "tests/app/program.h"

namespace
{
constexpr UINT warning = MB_OK | MB_ICONWARNING | MB_SETFOREGROUND | MB_TOPMOST;
constexpr DWORD chooserFlags = OFN_EXPLORER | OFN_ENABLESIZING | OFN_HIDEREADONLY | OFN_FILEMUSTEXIST;

class TextFile : public ProgramTest
{
  protected:
    CTextFileEx file{u"cfg"};
};
} // namespace

TEST_F(TextFile, ReadsLinesWithoutTheirEnds)
{
    const std::wstring path = MakeFile(L"a.cfg", "one\r\ntwo\nthree");
    std::vector<ov::Text> lines{u"old"};
    EXPECT_TRUE(file.ReadLines(FromWide(path), lines));
    EXPECT_EQ(lines, (std::vector<ov::Text>{u"one", u"two", u"three"}));
}

TEST_F(TextFile, AnEmptyPathAsksForAFileToOpen)
{
    doors.AnswerFile(MakeFile(L"a.cfg", "one\n"));
    std::vector<ov::Text> lines;
    EXPECT_TRUE(file.ReadLines({}, lines));
    EXPECT_EQ(lines, (std::vector<ov::Text>{u"one"}));
    ASSERT_EQ(doors.fileRequests.size(), 1u);
    EXPECT_TRUE(doors.fileRequests[0].open);
    EXPECT_EQ(doors.fileRequests[0].defaultExtension, u"cfg");
    EXPECT_EQ(doors.fileRequests[0].filter, u"Config File (*.cfg)|*.cfg||");
    EXPECT_EQ(doors.fileRequests[0].flags & chooserFlags, chooserFlags);
}

TEST_F(TextFile, CancellingTheChooserReadsNothing)
{
    doors.AnswerFile(L"");
    std::vector<ov::Text> lines{u"old"};
    EXPECT_FALSE(file.ReadLines({}, lines));
    EXPECT_EQ(lines, (std::vector<ov::Text>{u"old"}));
}

TEST_F(TextFile, AFileThatCannotBeOpenedIsToldWithoutOwnerAndTitle)
{
    doors.AnswerMessage(IDOK);
    std::vector<ov::Text> lines;
    EXPECT_FALSE(file.ReadLines(FromWide(folder / L"missing.cfg"), lines));
    ASSERT_EQ(doors.messages.size(), 1u);
    EXPECT_EQ(doors.messages[0].owner, nullptr);
    EXPECT_EQ(doors.messages[0].caption, L"");
    EXPECT_EQ(doors.messages[0].type, warning);
    EXPECT_FALSE(doors.messages[0].text.empty());
    EXPECT_LE(doors.messages[0].text.size(), 256u);
    EXPECT_EQ(Wide(file.GetLastError()), doors.messages[0].text);
}

TEST_F(TextFile, ALaterSuccessEmptiesTheLastError)
{
    doors.AnswerMessage(IDOK);
    std::vector<ov::Text> lines;
    EXPECT_FALSE(file.ReadLines(FromWide(folder / L"missing.cfg"), lines));
    EXPECT_TRUE(file.ReadLines(FromWide(MakeFile(L"a.cfg", "x\n")), lines));
    EXPECT_EQ(file.GetLastError(), u"");
}

TEST_F(TextFile, WritesEachTextWithALineEnd)
{
    const std::vector<ov::Text> lines{u"#\n# head", u"A = 1"};
    EXPECT_TRUE(file.WriteLines(FromWide(folder / L"out.cfg"), lines));
    EXPECT_EQ(uidriver::ReadBytes(folder / L"out.cfg"), "#\r\n# head\r\nA = 1\r\n");
}

TEST_F(TextFile, AnEmptyPathAsksForAFileToSave)
{
    doors.AnswerFile(folder / L"out.cfg");
    EXPECT_TRUE(file.WriteLines({}, std::vector<ov::Text>{u"x"}));
    EXPECT_EQ(uidriver::ReadBytes(folder / L"out.cfg"), "x\r\n");
    ASSERT_EQ(doors.fileRequests.size(), 1u);
    EXPECT_FALSE(doors.fileRequests[0].open);
    EXPECT_EQ(doors.fileRequests[0].defaultExtension, u"cfg");
    EXPECT_EQ(doors.fileRequests[0].filter, u"Config File (*.cfg)|*.cfg||");
    EXPECT_EQ(doors.fileRequests[0].flags & chooserFlags, chooserFlags);
}

TEST_F(TextFile, AFileThatCannotBeCreatedFailsSilently)
{
    EXPECT_FALSE(file.WriteLines(FromWide(folder / L"no folder\\out.cfg"), std::vector<ov::Text>{u"x"}));
    EXPECT_NE(file.GetLastError(), u"");
    EXPECT_TRUE(doors.messages.empty());
}

TEST_F(TextFile, SettingsOfAFileThatCannotBeReadAreToldAndOfAMissingOneNot)
{
    ov::SettingStore store;
    EXPECT_FALSE(file.ReadSettings(store, ov::kCurrentTable, FromWide(folder / L"missing.cfg")));
    EXPECT_FALSE(file.ReadSettings(store, ov::kCurrentTable, {}));
    EXPECT_TRUE(doors.messages.empty());
    doors.AnswerMessage(IDOK);
    EXPECT_FALSE(file.ReadSettings(store, ov::kCurrentTable, FromWide(folder / L".")));
    ASSERT_EQ(doors.messages.size(), 1u);
    EXPECT_EQ(doors.messages[0].type, warning);
    EXPECT_EQ(Wide(file.GetLastError()), doors.messages[0].text);
}

TEST_F(TextFile, AnErrorWithoutWordsIsToldByItsNumber)
{
    EXPECT_EQ(SystemErrorText(0x20001234), u"Error 536875572.");
    EXPECT_EQ(SystemErrorText(0xE0001234), u"Error 3758101044.");
}

TEST_F(TextFile, SystemWordsAreWithoutALineEndAndAtMost256Characters)
{
    for (const unsigned long error : {2ul, 5ul, 32ul, 112ul}) {
        const ov::Text words = SystemErrorText(error);
        EXPECT_FALSE(words.empty());
        EXPECT_FALSE(words.starts_with(u"Error ")) << error;
        EXPECT_EQ(words.find_first_of(u"\r\n"), ov::Text::npos);
        EXPECT_LE(words.size(), 256u);
    }
}
