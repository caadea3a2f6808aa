#include "config/core/config_reader.h"
#include "config/core/known_file.h"
#include "tests/core/memory_file_port.h"

#include <gtest/gtest.h>

namespace ov
{
namespace
{

TEST(KnownFile, ContentIsComparedToItsLastByteHoweverItComes)
{
    test::MemoryFilePort files;
    files.blockSize = 3;
    files.contents[u"a"] = "0123456789";
    EXPECT_EQ(CompareContent(files, u"a", "0123456789"), ContentMatch::Same);
    for (const char* other : {"", "012345678", "01234567890", "0123456788", "x123456789"})
        EXPECT_EQ(CompareContent(files, u"a", other), ContentMatch::Different) << other;
    files.contents[u"a"] = "";
    EXPECT_EQ(CompareContent(files, u"a", ""), ContentMatch::Same);
    EXPECT_EQ(CompareContent(files, u"missing", ""), ContentMatch::Unreadable);
    files.contents[u"a"] = "0123456789";
    files.calls = 0;
    files.failing = {3}; // open, read, read
    EXPECT_EQ(CompareContent(files, u"a", "0123456789"), ContentMatch::Unreadable);
}

TEST(KnownFile, FreeNameIsBesideTheFileAndKeepsItsExtension)
{
    test::MemoryFilePort files;
    EXPECT_EQ(FreeNameBeside(files, u"C:\\a.b\\office.cfg"), u"C:\\a.b\\office (replaced).cfg");
    EXPECT_EQ(FreeNameBeside(files, u"C:\\a.b\\office"), u"C:\\a.b\\office (replaced)");
    EXPECT_EQ(FreeNameBeside(files, u"/a.b/office.old.cfg"), u"/a.b/office.old (replaced).cfg");
    EXPECT_EQ(FreeNameBeside(files, u"office."), u"office (replaced).");
    EXPECT_EQ(FreeNameBeside(files, u"C:office"), u"C:office (replaced)");
}

TEST(KnownFile, TakenNamesAreNumbered)
{
    test::MemoryFilePort files;
    files.contents[u"a (replaced).cfg"] = "";
    EXPECT_EQ(FreeNameBeside(files, u"a.cfg"), u"a (replaced 2).cfg");
    files.directories.insert(u"a (replaced 2).cfg");
    EXPECT_EQ(FreeNameBeside(files, u"a.cfg"), u"a (replaced 3).cfg");
    // A name counts as used if it cannot be determined whether it is free.
    files.failing = {files.calls + 3};
    EXPECT_EQ(FreeNameBeside(files, u"a.cfg"), u"a (replaced 4).cfg");
}

TEST(KnownFile, OnlyAFileThatWasReadToItsEndBecomesKnown)
{
    test::MemoryFilePort files;
    files.blockSize = 4;
    files.contents[u"a.cfg"] = "NAME = value\n";
    SettingStore store;
    std::optional<KnownFile> known;
    ReadConfigFile(store, kCurrentTable, u"missing.cfg", files, &known);
    EXPECT_FALSE(known);
    files.failing = {files.calls + 4}; // kind, open, read, read
    ReadConfigFile(store, kCurrentTable, u"a.cfg", files, &known);
    EXPECT_FALSE(known);
    ReadConfigFile(store, kCurrentTable, u"a.cfg", files, &known);
    ASSERT_TRUE(known);
    EXPECT_EQ(known->path, u"a.cfg");
    EXPECT_EQ(known->content, "NAME = value\n");
}

} // namespace
} // namespace ov
