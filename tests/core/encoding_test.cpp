// The encodings that do more than copy a value.
#include "pages/core/encoding.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
using ov::LockableChoice;
using ov::ScaleSource;
using ov::Text;

constexpr const char16_t* presets[] = {u"$$USERFULLNAME$$-$$CURRENTFILE$$", u"$(ORTHOVAL_CURRENT_STANDARD)"};

TEST(Encoding, ListOfWhoDecidesReadsOneAndZeroAndLeavesTheRestToTheUser)
{
    EXPECT_EQ(ov::AlwaysNeverUserIndex(u"1"), 0);
    EXPECT_EQ(ov::AlwaysNeverUserIndex(u"0"), 1);
    EXPECT_EQ(ov::AlwaysNeverUserIndex(u" 1 of all"), 0);
    EXPECT_EQ(ov::AlwaysNeverUserIndex(u"never"), 1); // text that is not a number reads as 0
    for (const char16_t* text : {u"-1", u"", u"2", u"7", u"-2", u"10"})
        EXPECT_EQ(ov::AlwaysNeverUserIndex(text), 2) << ov::Utf8FromText(text);
}

TEST(Encoding, ListOfWhoDecidesIsWrittenAsOneZeroAndMinusOne)
{
    EXPECT_EQ(ov::AlwaysNeverUserText(0), u"1");
    EXPECT_EQ(ov::AlwaysNeverUserText(1), u"0");
    EXPECT_EQ(ov::AlwaysNeverUserText(2), u"-1");
    EXPECT_EQ(ov::AlwaysNeverUserText(-1), u"-1");
}

TEST(Encoding, ButtonsOfWhoDecidesReadNothingAsNever)
{
    EXPECT_EQ(ov::NeverAlwaysUserIndex(u""), 0);
    EXPECT_EQ(ov::NeverAlwaysUserIndex(u"0"), 0);
    EXPECT_EQ(ov::NeverAlwaysUserIndex(u"1"), 1);
    for (const char16_t* text : {u"-1", u"7", u"2"})
        EXPECT_EQ(ov::NeverAlwaysUserIndex(text), 2) << ov::Utf8FromText(text);
}

TEST(Encoding, ButtonsOfWhoDecidesAreWrittenAsZeroOneAndMinusOne)
{
    EXPECT_EQ(ov::NeverAlwaysUserText(0), u"0");
    EXPECT_EQ(ov::NeverAlwaysUserText(1), u"1");
    EXPECT_EQ(ov::NeverAlwaysUserText(2), u"-1");
    EXPECT_EQ(ov::NeverAlwaysUserText(-1), u"-1");
}

TEST(Encoding, LockableChoiceIsTheIndexPlusOneNegativeWhenLocked)
{
    EXPECT_EQ(ov::ReadLockableChoice(u"-3", 5), (LockableChoice{2, false}));
    EXPECT_EQ(ov::ReadLockableChoice(u"3", 5), (LockableChoice{2, true}));
    EXPECT_EQ(ov::ReadLockableChoice(u"99", 5), (LockableChoice{98, true}));
    EXPECT_EQ(ov::WriteLockableChoice({2, false}), u"-3");
    EXPECT_EQ(ov::WriteLockableChoice({2, true}), u"3");
}

TEST(Encoding, LockableChoiceWithoutANumberIsTheFallbackLeftToTheUser)
{
    for (const char16_t* text : {u"", u"0", u"all"})
        EXPECT_EQ(ov::ReadLockableChoice(text, 5), (LockableChoice{5, true})) << ov::Utf8FromText(text);
}

TEST(Encoding, LockableChoiceOfNothingIsWrittenAsZero)
{
    EXPECT_EQ(ov::WriteLockableChoice({-1, true}), u"0");
    EXPECT_EQ(ov::WriteLockableChoice({-1, false}), u"0");
}

TEST(Encoding, LockableChoiceSurvivesTheFarthestNumbers)
{
    EXPECT_EQ(ov::ReadLockableChoice(u"-2147483648", 5), (LockableChoice{2147483647, false}));
    EXPECT_EQ(ov::ReadLockableChoice(u"2147483647", 5), (LockableChoice{2147483646, true}));
}

TEST(Encoding, PresetIsRecognisedWhateverItsCase)
{
    EXPECT_EQ(ov::PresetChoice(u"", presets), 0);
    EXPECT_EQ(ov::PresetChoice(u"$$userfullname$$-$$CurrentFile$$", presets), 1);
    EXPECT_EQ(ov::PresetChoice(u"$(ORTHOVAL_CURRENT_STANDARD)", presets), 2);
    EXPECT_EQ(ov::PresetChoice(u"$(ORTHOVAL_CURRENT_STANDARD)\\x", presets), 3);
    EXPECT_EQ(ov::PresetChoice(u"C:\\Reports", presets), 3);
}

TEST(Encoding, PresetPutsItsOwnSpellingAndTheLastChoiceKeepsTheText)
{
    Text text = u"$(orthoval_current_standard)";
    ov::ApplyPreset(2, presets, text);
    EXPECT_EQ(text, u"$(ORTHOVAL_CURRENT_STANDARD)");
    ov::ApplyPreset(0, presets, text);
    EXPECT_EQ(text, u"");
    text = u"mine";
    ov::ApplyPreset(3, presets, text);
    EXPECT_EQ(text, u"mine");
    ov::ApplyPreset(-1, presets, text);
    EXPECT_EQ(text, u"mine");
}

TEST(Encoding, ScaleSourceReadsItsThreeCodes)
{
    const struct {
        const char16_t* text;
        ScaleSource source;
    } cases[] = {{u"0", {false, false}}, {u"1", {true, false}},   {u"2", {true, true}},
                 {u"yes", {true, true}}, {u" 1 ", {true, false}}, {u"00", {true, true}}};
    for (const auto& item : cases) {
        ScaleSource source = {};
        ov::ReadScaleSource(item.text, source);
        EXPECT_EQ(source, item.source) << ov::Utf8FromText(item.text);
    }
}

TEST(Encoding, ScaleSourceKeepsWhatItWasWhenThereIsNothingToRead)
{
    for (const ScaleSource before : {ScaleSource{false, false}, ScaleSource{true, true}}) {
        ScaleSource source = before;
        ov::ReadScaleSource(u"  ", source);
        EXPECT_EQ(source, before);
    }
}

TEST(Encoding, ScaleSourceNeverTakesTheOtherScalesAway)
{
    ScaleSource source = {false, true};
    ov::ReadScaleSource(u"0", source);
    EXPECT_EQ(source, (ScaleSource{false, true}));
    ov::ReadScaleSource(u"1", source);
    EXPECT_EQ(source, (ScaleSource{true, true}));
}

TEST(Encoding, ScaleSourceIsWrittenAsItsCode)
{
    EXPECT_EQ(ov::WriteScaleSource({false, false}), u"0");
    EXPECT_EQ(ov::WriteScaleSource({false, true}), u"0");
    EXPECT_EQ(ov::WriteScaleSource({true, false}), u"1");
    EXPECT_EQ(ov::WriteScaleSource({true, true}), u"2");
}

TEST(Encoding, BracketsOfTheScaleListComeOffAndGoOn)
{
    const struct {
        const char16_t* stored;
        const char16_t* list;
        bool bracketed;
    } cases[] = {{u"[1:50,1:100]", u"1:50,1:100", true},
                 {u" [[1:50]] ", u"1:50", true},
                 {u"[1:50", u"1:50", true},
                 {u"1:50]", u"1:50", true},
                 {u" 1:50 ", u"1:50", false},
                 {u"1:[5]0", u"1:[5]0", false},
                 {u"[]", u"", true},
                 {u"", u"", false}};
    for (const auto& item : cases) {
        SCOPED_TRACE(ov::Utf8FromText(item.stored));
        Text list = item.stored;
        EXPECT_EQ(ov::TakeScaleBrackets(list), item.bracketed);
        EXPECT_EQ(list, item.list);
    }
    EXPECT_EQ(ov::PutScaleBrackets(u"1:50,1:100"), u"[1:50,1:100]");
}

TEST(Encoding, ScaleFactorIsHeldInItsRangeAndLeftAsTypedWithinIt)
{
    const struct {
        const char16_t* typed;
        const char16_t* result;
    } cases[] = {{u"", u"1.00000"},
                 {u"2", u"1.25000"},
                 {u"1.25", u"1.25"},
                 {u"1.1", u"1.1"},
                 {u"1.2500001", u"1.25000"},
                 {u"0.75", u"0.75"},
                 {u"0.749", u"0.75000"},
                 {u"-1", u"0.75000"},
                 {u"+1.2", u"+1.2"},
                 {u" 1.2", u" 1.2"},
                 {u"one", u"0.75000"},
                 {u"1e1", u"1.25000"},
                 {u"1.2 or so", u"1.2 or so"},
                 {u"1e999", u"1.25000"},
                 {u"-1e999", u"0.75000"},
                 {u"1e-999", u"0.75000"}};
    for (const auto& item : cases)
        EXPECT_EQ(ov::Utf8FromText(ov::ClampedScaleFactor(item.typed)), ov::Utf8FromText(item.result))
            << ov::Utf8FromText(item.typed);
}

} // namespace
