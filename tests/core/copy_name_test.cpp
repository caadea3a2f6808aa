// The names of dated copies: legal on every system, in order, and never those of anything else.

#include "launch/core/copy_name.h"
#include "tests/core/memory_folder_port.h"

#include <gtest/gtest.h>

#include <vector>

namespace ov
{
namespace
{

using namespace std::chrono_literals;
using namespace std::string_literals;

const LocalTime kNoon = std::chrono::local_days(std::chrono::year(2026) / 11 / 22) + 12h;

class CopyNameTest : public testing::Test
{
  protected:
    CopyNames Names(const Text& path, const Text& folder = {})
    {
        return {path, folder, {m_files, m_folders}};
    }

    test::MemoryFilePort m_files;
    test::MemoryFolderPort m_folders{m_files};
};

TEST_F(CopyNameTest, ContainsTheNameOfTheFileAndTheTime)
{
    const CopyNames names = Names(u"a/office.cfg");
    EXPECT_EQ(names.NameOf({kNoon + 5s, 1}), u"office.cfg 2026-11-22 12.00.05.copy");
    EXPECT_EQ(names.NameOf({kNoon, 2}), u"office.cfg 2026-11-22 12.00.00-2.copy");
    EXPECT_EQ(names.UnfinishedNameOf({kNoon, 1}), u"office.cfg 2026-11-22 12.00.00.part");
    EXPECT_EQ(names.Folder(), u"a/");
}

TEST_F(CopyNameTest, IsReadBack)
{
    for (const Text& file : {u"office.cfg"s, u"office"s, u"a.b.c.cfg"s, u".cfg"s, u"B\u00fcro (2).cfg"s,
                             u"office.bak"s, u"office.cfg 2026-11-22 12.00.00.copy"s}) {
        const CopyNames names = Names(file);
        for (const CopyStamp& stamp :
             {CopyStamp{kNoon, 1}, CopyStamp{kNoon + 90min, 2}, CopyStamp{kNoon, 1000}}) {
            EXPECT_EQ(names.StampOf(names.NameOf(stamp)), stamp) << Utf8FromText(file);
            EXPECT_EQ(names.StampOfUnfinished(names.UnfinishedNameOf(stamp)), stamp);
            EXPECT_EQ(names.StampOf(names.UnfinishedNameOf(stamp)), std::nullopt);
            EXPECT_EQ(names.StampOfUnfinished(names.NameOf(stamp)), std::nullopt);
        }
    }
}

TEST_F(CopyNameTest, OtherNamesAreNotTaken)
{
    const CopyNames names = Names(u"office.cfg");
    for (const Text& other : {u"office.cfg"s,
                              u"office.bak"s,
                              u"office.cfg.copy"s,
                              u""s,
                              u"office (replaced).cfg"s,
                              u"office.cfg 2026-11-22 12.00.00.cfg"s,
                              u"office.cfg 2026-11-22 12.00.00"s,
                              u"office.cfg 2026-11-22 12:00:00.copy"s,
                              u"office.cfg 2026-13-22 12.00.00.copy"s,
                              u"office.cfg 2026-00-22 12.00.00.copy"s,
                              u"office.cfg 2026-02-30 12.00.00.copy"s,
                              u"office.cfg 2026-11-22 24.00.00.copy"s,
                              u"office.cfg 2026-11-22 12.60.00.copy"s,
                              u"office.cfg 2026-11-22 12.00.00-1.copy"s,
                              u"office.cfg 2026-11-22 12.00.00-02.copy"s,
                              u"office.cfg 2026-11-22 12.00.00-.copy"s,
                              u"office.cfg 2026-11-22 12.00.00--2.copy"s,
                              u"office.cfg 2026-11-22 12.00.00-99999999999.copy"s,
                              u"office.cfg 2026-11-22 12.00.00 (2).copy"s,
                              u"office.cfg 2026-11-22 12.00.00 0a1b2c3d.copy"s,
                              u"office.cfg 2026-11-22 12.00.00.copy.copy"s,
                              u"office.cfg  2026-11-22 12.00.00.copy"s,
                              u"office.cfx 2026-11-22 12.00.00.copy"s,
                              u"my office.cfg 2026-11-22 12.00.00.copy"s,
                              u"OFFICE.cfg 2026-11-22 12.00.00.copy"s,
                              u"office.cfg 2026-11-22 12.00.00.copy 2026-11-22 12.00.00.copy"s})
        EXPECT_EQ(names.StampOf(other), std::nullopt) << Utf8FromText(other);
}

TEST_F(CopyNameTest, CaseMattersAsForTheSystem)
{
    m_folders.ignoresCase = true;
    EXPECT_EQ(Names(u"Office.CFG").StampOf(u"office.cfg 2026-11-22 12.00.00.COPY"), (CopyStamp{kNoon, 1}));
}

TEST_F(CopyNameTest, AFolderOfChoiceKeepsFilesOfTheSameNameApart)
{
    const CopyNames one = Names(u"one/office.cfg", u"copies");
    const CopyNames two = Names(u"two/office.cfg", u"copies");
    const Text name = one.NameOf({kNoon, 3});
    EXPECT_EQ(one.StampOf(name), (CopyStamp{kNoon, 3}));
    EXPECT_EQ(two.StampOf(name), std::nullopt);
    EXPECT_EQ(Names(u"/office/one/office.cfg", u"copies").StampOf(name), (CopyStamp{kNoon, 3}));
    EXPECT_EQ(one.Folder(), u"copies");
}

TEST_F(CopyNameTest, TheFilesOwnFolderIsNoFolderOfChoice)
{
    EXPECT_EQ(Names(u"one/office.cfg", u"/office/one").NameOf({kNoon, 1}),
              u"office.cfg 2026-11-22 12.00.00.copy");
}

TEST_F(CopyNameTest, ALinkHasTheCopiesOfItsTarget)
{
    m_files.contents[u"one/office.cfg"] = "";
    m_files.links[u"link.cfg"] = u"one/office.cfg";
    EXPECT_EQ(Names(u"link.cfg").Folder(), u"one/");
    EXPECT_EQ(Names(u"link.cfg").NameOf({kNoon, 1}), u"office.cfg 2026-11-22 12.00.00.copy");
}

} // namespace
} // namespace ov
