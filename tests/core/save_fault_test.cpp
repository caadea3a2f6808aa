// Lets every operation of a save fail, alone and in pairs, and the process end in every one: a
// complete copy of the file, old or new, must always stand.

#include "config/core/save.h"

#include "config/core/config_writer.h"
#include "tests/core/memory_file_port.h"
#include "tests/core/scoped_locale.h"
#include "tests/core/test_surroundings.h"

#include <gtest/gtest.h>
#include <new>
#include <optional>
#include <vector>

namespace ov
{
namespace
{

const Text kPath = u"office.cfg";
const Text kBackup = u"office.bak";
const std::string kOld = "OLD = content\r\n";
const std::string kStale = "STALE = content\r\n";

enum class Before { NoFile, File, FileAndStaleBackup, FileNamedAsBackup };

class SaveFault : public testing::TestWithParam<Before>
{
  protected:
    SaveFault()
    {
        m_store.SetSetting(u"A", u"1", SettingKindInteger, u"", kCurrentTable);
        EXPECT_TRUE(WriteConfig(m_store, test::TestSurroundings::Header(), m_new));
    }

    const Text& Path() const { return GetParam() == Before::FileNamedAsBackup ? kBackup : kPath; }

    test::MemoryFilePort Files() const
    {
        test::MemoryFilePort files;
        if (GetParam() != Before::NoFile)
            files.contents[Path()] = kOld;
        if (GetParam() == Before::FileAndStaleBackup)
            files.contents[kBackup] = kStale;
        return files;
    }

    SaveResult Save(test::MemoryFilePort& files)
    {
        test::TestSurroundings surroundings;
        return SaveConfigFile(m_store, Path(), files, surroundings, [](const Text&) {});
    }

    static std::optional<std::string> Content(const test::MemoryFilePort& files, const Text& path)
    {
        const auto found = files.contents.find(path);
        return found == files.contents.end() ? std::nullopt : std::optional(found->second);
    }

    // What must hold once a save has returned, whatever failed in it.
    void ExpectNothingLost(const test::MemoryFilePort& files, const SaveResult& result) const
    {
        const auto file = Content(files, Path());
        EXPECT_EQ(files.openFiles, 0);
        if (result.Saved()) {
            EXPECT_EQ(file, m_new);
            return;
        }
        switch (result.oldContent) {
        case OldContent::NoneBefore:
            // A removal that failed too may leave the beginning of the file.
            EXPECT_EQ(GetParam(), Before::NoFile);
            EXPECT_TRUE(!file || m_new.starts_with(*file));
            break;
        case OldContent::Stands:
            EXPECT_EQ(file, kOld);
            break;
        case OldContent::UnderBackupName:
            EXPECT_EQ(Content(files, kBackup), kOld);
            break;
        case OldContent::Lost:
            ADD_FAILURE() << "lost";
            break;
        }
    }

    const test::ScopedLocale m_locale{"C"};
    SettingStore m_store;
    std::string m_new;
};

TEST_P(SaveFault, EachOperationMayFail)
{
    int successes = 0;
    for (int k = 1;; ++k) {
        SCOPED_TRACE(k);
        test::MemoryFilePort files = Files();
        files.failing = {k};
        const SaveResult result = Save(files);
        ExpectNothingLost(files, result);
        successes += result.Saved() ? 1 : 0;
        if (files.calls < k)
            break;
    }
    EXPECT_GE(successes, 1);
}

TEST_P(SaveFault, EachPairOfOperationsMayFail)
{
    for (int first = 1;; ++first) {
        bool firstFired = false;
        for (int second = first + 1;; ++second) {
            SCOPED_TRACE(testing::Message() << first << " and " << second);
            test::MemoryFilePort files = Files();
            files.failing = {first, second};
            ExpectNothingLost(files, Save(files));
            firstFired = files.calls >= first;
            if (files.calls < second)
                break;
        }
        if (!firstFired)
            break;
    }
}

TEST_P(SaveFault, MemoryMayRunOutInEachOperation)
{
    for (int k = 1;; ++k) {
        SCOPED_TRACE(k);
        test::MemoryFilePort files = Files();
        files.throwing = k;
        try {
            EXPECT_TRUE(Save(files).Saved());
            break;
        } catch (const std::bad_alloc&) {
        }
        const auto file = Content(files, Path());
        EXPECT_EQ(files.openFiles, 0);
        EXPECT_TRUE(file == Content(Files(), Path()) || file == m_new) << file.value_or("no file");
        if (GetParam() == Before::File && file == kOld) {
            EXPECT_EQ(Content(files, kBackup), std::nullopt);
        }
    }
}

TEST_P(SaveFault, ProcessMayEndInEachOperation)
{
    // Without a room for a backup the file is overwritten in place, and its content is in memory only.
    const bool inPlace = GetParam() == Before::FileAndStaleBackup || GetParam() == Before::FileNamedAsBackup;
    for (int k = 1;; ++k) {
        SCOPED_TRACE(k);
        test::MemoryFilePort files = Files();
        files.crashing = k;
        try {
            EXPECT_TRUE(Save(files).Saved());
            break;
        } catch (const test::Crash&) {
        }
        const auto file = Content(files, Path());
        const auto backup = Content(files, kBackup);
        if (GetParam() == Before::File) {
            EXPECT_TRUE(file == kOld || file == m_new || backup == kOld);
        }
        if (inPlace && file != kOld && file != m_new) {
            EXPECT_TRUE(m_new.starts_with(*file));
        }
        if (GetParam() == Before::FileAndStaleBackup && file != m_new) {
            EXPECT_EQ(backup, kStale);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Situations, SaveFault,
                         testing::Values(Before::NoFile, Before::File, Before::FileAndStaleBackup,
                                         Before::FileNamedAsBackup));

} // namespace
} // namespace ov
