// The memory of what the user was asked: once for each state, bounded, and tolerant of damage.

#include "launch/core/asked_files.h"

#include <gtest/gtest.h>

#include <random>

namespace ov
{
namespace
{

const Text kKey = u"C:\\OFFICE\\B\u00dcRO.CFG";
const Text kState = u"0123456789abcdef";
const Text kOtherState = u"fedcba9876543210";

// A look with a remark.
FileLook Remarkable(const Text& state)
{
    FileLook look;
    look.readOnly = true;
    look.state = state;
    return look;
}

FileLook WithBackup(const Text& state)
{
    FileLook look = Remarkable(state);
    look.interrupted.found = true;
    look.interrupted.file.exists = true; // and nothing is known to be wrong with it
    return look;
}

AskedFiles Reread(const AskedFiles& asked)
{
    return AskedFiles::Parse(asked.Format());
}

TEST(AskedFilesTest, AsksOncePerState)
{
    AskedFiles asked;
    EXPECT_TRUE(asked.ShouldAsk(kKey, Remarkable(kState)));
    asked.Remember(kKey, kState);
    asked = Reread(asked);
    EXPECT_FALSE(asked.ShouldAsk(kKey, Remarkable(kState)));
    EXPECT_TRUE(asked.ShouldAsk(kKey, Remarkable(kOtherState)));
    EXPECT_TRUE(asked.ShouldAsk(u"C:\\OTHER.CFG", Remarkable(kState)));
    asked.Forget(kKey);
    EXPECT_TRUE(asked.ShouldAsk(kKey, Remarkable(kState)));
}

TEST(AskedFilesTest, WithoutARemarkThereIsNothingToAsk)
{
    EXPECT_FALSE(AskedFiles().ShouldAsk(kKey, FileLook()));
}

TEST(AskedFilesTest, NeverAsksAgainExceptAboutABackup)
{
    AskedFiles asked;
    asked.NeverAsk(kKey, kState);
    asked.Remember(kKey, kState);
    asked = Reread(asked);
    EXPECT_FALSE(asked.ShouldAsk(kKey, Remarkable(kOtherState)));
    EXPECT_TRUE(asked.ShouldAsk(kKey, WithBackup(kOtherState)));
    asked.Remember(kKey, kOtherState);
    EXPECT_FALSE(asked.ShouldAsk(kKey, WithBackup(kOtherState)));
    EXPECT_FALSE(asked.ShouldAsk(kKey, Remarkable(kState))) << "Still never";
}

TEST(AskedFilesTest, TheTextIsStable)
{
    AskedFiles asked;
    asked.NeverAsk(u"/a b/\u00fc.cfg", kState);
    asked.Remember(u"/c.cfg", kOtherState);
    EXPECT_EQ(asked.Format(), "fedcba9876543210\t/c.cfg\nnever 0123456789abcdef\t/a b/\xC3\xBC.cfg\n");
}

TEST(AskedFilesTest, ForgetsWhatWasAskedFirst)
{
    AskedFiles asked;
    for (std::size_t file = 0; file <= AskedFiles::kMostFiles; ++file)
        asked.Remember(u"/" + FormatInteger(static_cast<int>(file)), kState);
    asked = Reread(asked);
    EXPECT_TRUE(asked.ShouldAsk(u"/0", Remarkable(kState)));
    EXPECT_FALSE(asked.ShouldAsk(u"/1", Remarkable(kState)));
    EXPECT_FALSE(asked.ShouldAsk(u"/" + FormatInteger(AskedFiles::kMostFiles), Remarkable(kState)));
}

TEST(AskedFilesTest, DamagedLinesAreIgnored)
{
    const AskedFiles asked = AskedFiles::Parse("\xFF\xFE\n0123456789abcdef\n0123456789abcde\t/short\n"
                                               "0123456789ABCDEF\t/upper\n0123456789abcdef\t\nnever\t/x\n\n"
                                               "0123456789abcdef\t/good\r\nfedcba9876543210\t/good\n"
                                               "never fedcba9876543210\t/last");
    EXPECT_EQ(asked.Format(), "0123456789abcdef\t/good\nnever fedcba9876543210\t/last\n");
}

TEST(AskedFilesTest, ANameThatCannotBeStoredIsAskedAgain)
{
    AskedFiles asked;
    asked.Remember(u"/line\nbreak", kState);
    asked.Remember(u"", kState);
    EXPECT_EQ(asked.Format(), "");
    EXPECT_TRUE(asked.ShouldAsk(u"/line\nbreak", Remarkable(kState)));
}

TEST(AskedFilesTest, RandomBytesAreReadWithoutHarmAndReadTheSameAgain)
{
    std::mt19937 random(7);
    const std::string alphabet = "0123456789abcdefnever \t\n\r/\xC3\xBC";
    for (int sample = 0; sample < 500; ++sample) {
        std::string text(random() % 200, ' ');
        for (char& c : text)
            c = alphabet[random() % alphabet.size()];
        text.insert(random() % (text.size() + 1), "\n0123456789abcdef\t");
        const AskedFiles asked = AskedFiles::Parse(text);
        EXPECT_EQ(Reread(asked).Format(), asked.Format());
    }
}

} // namespace
} // namespace ov
