// Every rule fires where it has to, and does not fire on similar but correct files.
#include "inspect/core/save_preview.h"
#include "tests/core/findings_support.h"
#include "tests/data/saved_header.h"

#include <gtest/gtest.h>

#include <set>

namespace
{
using findings::FindingsOf;
using findings::PlacesOf;
using ov::RuleId;
using Places = std::vector<std::string>;

const std::string savedHeader =
    std::string(ov::test::kSavedHeaderBegin) +
    "# This file was last saved on Monday 1 June 2026, 08:00:00 by user A. Lee on machine 'PC 1'\n"
    "#\n";

struct Case {
    RuleId rule;
    std::string file;
    Places places; ///< empty: the rule does not fire
    std::optional<std::string> defaults = std::nullopt;
};

void ExpectPlaces(const std::vector<Case>& cases)
{
    for (const Case& item : cases) {
        SCOPED_TRACE(testing::Message() << ov::RuleOf(item.rule).id << " on "
                                        << testing::PrintToString(item.file.substr(0, 200)));
        EXPECT_EQ(PlacesOf(item.rule, item.file, item.defaults), item.places);
    }
}

TEST(Rules, HaveIdsInOrderAndDistinctNames)
{
    std::string previous;
    std::set<std::string> names;
    for (std::size_t i = 0; i < ov::Rules().size(); ++i) {
        const ov::Rule& rule = ov::Rules()[i];
        EXPECT_EQ(static_cast<std::size_t>(rule.rule), i);
        EXPECT_LT(previous, rule.id);
        EXPECT_TRUE(names.insert(rule.name).second) << rule.name;
        previous = rule.id;
    }
    EXPECT_EQ(ov::Rules().size(), 26u);
}

TEST(Rules, FireOnTheirExamples)
{
    for (const ov::Rule& rule : ov::Rules()) {
        SCOPED_TRACE(rule.id);
        std::optional<std::string> defaults;
        if (*rule.exampleDefaults != '\0')
            defaults = ov::ExampleBytes(rule.exampleDefaults);
        const auto found = FindingsOf(rule.rule, ov::ExampleBytes(rule.example), defaults);
        ASSERT_FALSE(found.empty());
        for (const ov::Finding& finding : found) {
            EXPECT_EQ(finding.rule, rule.rule);
            EXPECT_EQ(finding.message.find('{'), std::string::npos) << finding.message;
        }
    }
}

TEST(Rules, AreSelectedByIdsAndTheirBeginnings)
{
    ov::RuleSet rules;
    EXPECT_TRUE(rules.Contains(RuleId::DirectiveLost));
    EXPECT_FALSE(rules.Contains(RuleId::PathMissing));
    EXPECT_FALSE(rules.Contains(RuleId::EqualsDefault));
    EXPECT_TRUE(rules.Set("OV1", false));
    EXPECT_FALSE(rules.Contains(RuleId::SettingsAdded));
    EXPECT_TRUE(rules.Contains(RuleId::NotAFlag));
    EXPECT_TRUE(rules.Set("OV208", true));
    EXPECT_TRUE(rules.Contains(RuleId::PathMissing));
    EXPECT_TRUE(rules.Set("all", false));
    EXPECT_FALSE(rules.Contains(RuleId::NotAFlag));
    EXPECT_FALSE(rules.Set("OV999", true));
    EXPECT_FALSE(rules.Set("", true));
}

TEST(Findings, OfLinesThatSaveDrops)
{
    ExpectPlaces({
        {RuleId::DirectiveLost, "A = 1\n  %include x\n%if 1\n", {"2:1", "3:1"}},
        {RuleId::DirectiveLost, "\t%endif", {"1:1"}},
        {RuleId::DirectiveLost, "%\n", {"1:1"}},
        {RuleId::DirectiveLost, "# %include\nA = %DATE%\n\n", {}},
        {RuleId::LineIgnored, "A=1\n", {"1:1"}},
        {RuleId::LineIgnored, "A = 1\nlonely\n", {"2:1"}},
        {RuleId::LineIgnored, "A= value\nA value\n", {"1:1", "2:1"}},
        {RuleId::LineIgnored, "A = 1\nA =1\n#A=1\n%A\n\n", {}},
    });
}

TEST(Findings, OfHeadersAndComments)
{
    ExpectPlaces({
        {RuleId::HeaderReplaced, "# mine\n\nA = 1\n", {"1:1"}},
        {RuleId::HeaderReplaced, "%include x\n# mine\n# too\n\nA = 1\n", {"2:1"}},
        {RuleId::HeaderReplaced, "#\n\n", {"1:1"}},
        {RuleId::HeaderReplaced, savedHeader + "# and more\n\nA = 1\n", {"1:1"}},
        {RuleId::HeaderReplaced, savedHeader + "\nA = 1\n", {}},
        {RuleId::HeaderReplaced, "# mine\nA = 1\n\nB = 1\n", {}},
        {RuleId::HeaderReplaced, "# mine\nA=1\n\nB = 1\n", {}},
        {RuleId::HeaderReplaced, "# mine\n", {}},
        {RuleId::HeaderReplaced, "\n# mine\n\nA = 1\n", {}},
        {RuleId::CommentLost, "A = 1\n# b\n", {"2:1"}},
        {RuleId::CommentLost, "A = 1\n#\n# b\n\n# c\nA > 2\nB = 1\n", {"2:1"}},
        {RuleId::CommentLost, "\n# nothing follows\n", {"2:1"}},
        {RuleId::CommentLost, "# header\n\n# nothing follows\n", {"3:1"}},
        {RuleId::CommentLost, "A = 1\n# b\nlonely\n%if\nA > 2\n", {"2:1"}},
        {RuleId::CommentLost, "# header\n\n", {}},
        {RuleId::CommentLost, "A = 1\n# \xC3\xA9\nA = 2\n", {"2:1"}},
        {RuleId::CommentLost, "A = 1\n# =====\n#\nA > 2\n# ---\n", {}},
        {RuleId::CommentLost, "# a\nA = 1\n# b\nB = 1\n", {}},
        {RuleId::CommentLost, "# header\n\nA = 1\n# b\nnothing\n%if\nB = 1\n", {}},
        {RuleId::HeaderRepeats, "A = 1\n", {"1:5"}},
        {RuleId::HeaderRepeats, "\n\nB = 1\n_ORTHOVAL_CHECK_CELLS = 1\nA = 2\n", {"5:5"}},
        {RuleId::HeaderRepeats, savedHeader + "A = 1\n", {"14:5"}},
        {RuleId::HeaderRepeats, "A = 1\nA > 2\n", {"1:5"}},
        {RuleId::HeaderRepeats, "# note\nA = 1\n", {}},
        {RuleId::HeaderRepeats, "\nA = 1\n", {}},
        {RuleId::HeaderRepeats, "A = 1\n", {}, "#\n\n# note\nA = 1\n"},
        {RuleId::HeaderRepeats, "_ORTHOVAL_CHECK_CELLS = 1\n", {}},
    });
}

TEST(Findings, OfOperators)
{
    ExpectPlaces({
        {RuleId::InheritedList, "A > 1\nA > 2\n", {"1:5"}},
        {RuleId::InheritedList, "B = 1\nA < 1\n", {"2:5"}},
        {RuleId::InheritedList, "A : 1\nC + 1\n", {"1:5", "2:5"}},
        {RuleId::InheritedList, "A = 1\nA > 2\nA < 2\n", {}},
        {RuleId::AssignedAgain, "A = 1\nA = 2\n", {"1:5"}},
        {RuleId::AssignedAgain, "A > 1\nA > 2\nB = 1\nA = 2\n", {"1:5", "2:5"}},
        {RuleId::AssignedAgain, "A = 1\nA = 2\nA = 3\n", {"1:5", "2:5"}},
        {RuleId::AssignedAgain, "A = 1\nA > 2\na = 3\n", {}},
        {RuleId::MalformedOperator, "A =1\n", {"1:1"}},
        {RuleId::MalformedOperator, "NAME= C:\\x y\n", {"1:12"}},
        {RuleId::MalformedOperator, "A == 1\nB := 1\n", {"1:6", "2:6"}},
        {RuleId::MalformedOperator, "A = =1\nA > 1\nA : 1\nA + 1\nA < 1\n", {}},
        {RuleId::ConflictMarker, "<<<<<<< a\nA = 1\n=======\n>>>>>>> b\n", {"1:1", "3:1", "4:1"}},
        {RuleId::ConflictMarker, "<<<<<<<\r\n", {"1:1"}},
        {RuleId::ConflictMarker, ">>>>>>> x = y\n", {"1:1"}},
        {RuleId::ConflictMarker, "<<<<<<a b\n", {}},
        {RuleId::ConflictMarker, "<<<<<<<< a\n======\n======= x\n >>>>>>> b\n>>>>>>>b\n", {}},
        {RuleId::LineIgnored, "<<<<<<< a\n=======\n", {}},
        {RuleId::MalformedOperator, "<<<<<<< a:b\n", {}},
    });
}

TEST(Findings, OfWhatSaveMakesOfValues)
{
    ExpectPlaces({
        {RuleId::ValueChanges, "A = a #b\n", {"1:5"}},
        {RuleId::ValueChanges, "A = 1\nA > ;\nA > 2\n", {"3:5"}},
        {RuleId::ValueChanges, "A = ;\n", {"1:5"}},
        {RuleId::ValueChanges, "A = say \"b\" now\n", {"1:5"}},
        {RuleId::ValueChanges, "_ORTHOVAL_BORDERSHEETS_ERROR_SCALE = 1.5\n", {}},
        {RuleId::ValueChanges, "_ORTHOVAL_REPORT_NAMING = $$userinitials$$-$$currentfile$$\n", {"1:27"}},
        {RuleId::ValueChanges, "_ORTHOVAL_DICT_DIR = \"/x \"\n", {"1:22"}},
        {RuleId::ValueChanges, "_ORTHOVAL_CHECK_CELLS = Yes\n", {}},
        {RuleId::ValueChanges, "_ORTHOVAL_PROMPT_COLOURTABLE_REMAP = 7\n", {}},
        {RuleId::ValueChanges, "_ORTHOVAL_SCANPERIOD_SETTINGS = 1,1,0,1,13,2011\n", {}},
        {RuleId::ValueChanges, "A = a;b\nB = \"#b\"\nC = \"a b \"\nD = 1.5\nE = \n", {}},
        {RuleId::EntryCut,
         "_ORTHOVAL_COLOURTABLES = a\n_ORTHOVAL_COLOURTABLES > " + std::string(1025, 'x') + "\n",
         {"2:26"}},
        {RuleId::EntryCut, "_ORTHOVAL_CHECK_IGNORED_LEVELS = a," + std::string(2000, 'x') + ",b\n", {"1:34"}},
        {RuleId::EntryCut,
         "_ORTHOVAL_BORDERSHEETS = a.dgn," + std::string(1025, 'x') + ";" + std::string(1025, 'y') + "\n",
         {"1:26", "1:26"}},
        {RuleId::EntryCut,
         "_ORTHOVAL_CHECK_IGNORED_LEVELS = " + std::string(1024, 'x') + "," + std::string(1024, 'y') + "\n",
         {}},
        {RuleId::EntryCut,
         "_ORTHOVAL_COLOURTABLES = " + std::string(1025, 'x') + "\n_ORTHOVAL_COLOURTABLES > a\n",
         {"1:26"}},
        {RuleId::EntryCut, "_ORTHOVAL_CHECK_IGNORED_LEVELS = a, " + std::string(1024, 'x') + "\n", {}},
        {RuleId::EntryCut, "_ORTHOVAL_MENU_NAME = " + std::string(2000, 'x') + "\n", {}},
        {RuleId::ByteOrderMark, "\xEF\xBB\xBF# a\n", {"1:1"}},
        {RuleId::ByteOrderMark, "\xEF\xBB\xBF_ORTHOVAL_CHECK_TAGS = 1\nA = 1\n", {"1:1"}},
        {RuleId::ByteOrderMark, "\xEF\xBB\xBF", {"1:1"}},
        {RuleId::ByteOrderMark, "\n\xEF\xBB\xBF# a\n", {}},
        {RuleId::ByteOrderMark, "\xEF\xBB", {}},
        {RuleId::ByteOrderMark, "A = \xEF\xBB\xBF\n", {}},
        {RuleId::NotPlainText,
         std::string("\xFF\xFE"
                     "A\0 \0=\0",
                     8),
         {"1:1"}},
        {RuleId::NotPlainText, std::string("A\0 \0=\0 \0001\0\n\0", 12), {"1:1"}},
        {RuleId::NotPlainText, "A = 1\rB = 2\r", {"1:1"}},
        {RuleId::NotPlainText, std::string("\xFE\xFF\0=", 4), {"1:1"}},
        {RuleId::NotPlainText, std::string("A = \0x\0y\0z\n", 11), {}},
        {RuleId::NotPlainText, "A = 1\r", {}},
        {RuleId::NotPlainText, std::string("A = 1\r\nB = \0\r\n", 14), {}},
        {RuleId::NotPlainText, "", {}},
        {RuleId::CharacterRefused, "# \xE9\nB = 1\nA = 1\n", {"1:1"}, "#\n\n# \xC5\x81\nA = 1\n"},
        {RuleId::CharacterRefused, "\nB = \xA3\nA > 1\n", {"1:1"}, "\n# \xD0\xAF\nA = 1\nC = 1\n"},
        {RuleId::CharacterRefused,
         "# \xE9\nA = 1\n_ORTHOVAL_CHECK_TAGS = 1\n",
         {"1:1"},
         "#\n\n# \xE2\x82\xAC \xE2\x98\x83\n_ORTHOVAL_CHECK_TAGS = 1\n"},
        {RuleId::CharacterRefused, "# \xE9\nB = 1\n# b\nA = 1\n", {}, "#\n\n# \xC5\x81\nA = 1\n"},
        {RuleId::CharacterRefused, "#\nB = 1\nA = 1\n", {}, "#\n\n# \xC5\x81\nA = 1\n"},
        {RuleId::CharacterRefused, "# \xE9\nB = 1\nA = 1\n", {}, "#\n\n# \xE2\x82\xAC\nA = 1\n"},
    });
}

TEST(Findings, OfNamesFlagsAndNumbers)
{
    ExpectPlaces({
        {RuleId::UnknownVariable, "_orthoval_check_cells = 1\n", {"1:25"}},
        {RuleId::UnknownVariable, "_ORTHOVAL_NO_SUCH = 1\nORTHOVAL_NONE > 1\n", {"1:21", "2:17"}},
        {RuleId::UnknownVariable, "ORTOVAL_LOG_FILE_MAXSIZE = 1\n", {"1:28"}},
        {RuleId::UnknownVariable, "_orthoval_no_such = 1\n_orthoval_no_such > 2\n", {"1:21"}},
        {RuleId::UnknownVariable, "_ORTXXVAL_CHECK_CELLS = 1\n_ORTVAL_CHECK_CELLS = 1\n", {"1:25", "2:23"}},
        {RuleId::UnknownVariable,
         "_ORTXXHOVAL_CHECK_CELLS = 1\n_ORTHOXQL_CHECK_CELLS = 1\n",
         {"1:27", "2:25"}},
        {RuleId::UnknownVariable, "_ORTXXXAL_CHECK_CELLS = 1\n_ORTAL_CHECK_CELLS = 1\n", {}},
        {RuleId::UnknownVariable,
         "_ORTHOVAL_CHECK_CELLS = 1\nORTHOVAL_LOG_FILE_MAXSIZE = 1\n_ORTHOVAL_SCANPERIOD_VALUE = 1\n"
         "_ORTHOVAL_REPORT_TEMPLATE_DSN_XLS = x\nHR_OFFICE = 1\nMY_ORTHOVAL_X = 1\n",
         {}},
        {RuleId::NotAFlag, "_ORTHOVAL_CHECK_CELLS = true\n", {"1:25"}},
        {RuleId::NotAFlag, "_ORTHOVAL_CHECK_CELLS = 1 # on\n_ORTHOVAL_CHECK_TEXT = $(X)\n", {"1:25", "2:24"}},
        {RuleId::NotAFlag, "_ORTHOVAL_REPORT_REF_UNSCALE_DIMS = 2\n", {"1:37"}},
        {RuleId::NotAFlag,
         "_ORTHOVAL_CHECK_CELLS = 0\n_ORTHOVAL_CHECK_TEXT = \"1\"\n_ORTHOVAL_CHECK_TAGS = \n",
         {}},
        {RuleId::NotAFlag, "_ORTHOVAL_CHECK_CELLS = \" 1\"\n", {"1:25"}},
        {RuleId::NotANumber, "_ORTHOVAL_MAX_ERROR_UORS = 12 or so\n", {"1:28"}},
        {RuleId::NotANumber, "_ORTHOVAL_MIN_MU_ERRORSCALE = 1e3\n", {"1:31"}},
        {RuleId::NotANumber, "_ORTHOVAL_MAX_ERROR_UORS = \" +5 \"\n", {}},
        {RuleId::NotANumber,
         "_ORTHOVAL_WEIGHTING_COLOUR = 25\n_ORTHOVAL_TABLE_BACKUP_MAX = -1\n",
         {"1:30", "2:30"}},
        {RuleId::NotANumber, "_ORTHOVAL_BORDERSHEETS_ERROR_SCALE = 1.5\n", {"1:38"}},
        {RuleId::NotANumber,
         "_ORTHOVAL_MAX_ERROR_UORS = 10000\n_ORTHOVAL_MIN_MU_ERRORSCALE = 0.005\n"
         "_ORTHOVAL_REPORT_REFS_NESTLEVEL = -1\n_ORTHOVAL_MENU_NAME = no number\n"
         "_ORTHOVAL_REPORT_MAXLOGGABLE = \n",
         {}},
    });
}

TEST(Findings, OfChoicesListsAndDates)
{
    ExpectPlaces({
        {RuleId::NoSuchChoice, "_ORTHOVAL_LOG_FILE_DEBUGLEVEL = 3\n", {"1:33"}},
        {RuleId::NoSuchChoice, "_ORTHOVAL_WILDCARD_TYPE = Perl\n", {"1:27"}},
        {RuleId::NoSuchChoice,
         "_ORTHOVAL_WATERMARKS_OVERWRITE = 2\n_ORTHOVAL_REPORT_AUTOGETMODELS = 9\n",
         {"1:34", "2:34"}},
        {RuleId::NoSuchChoice, "_ORTHOVAL_WILDCARD_TYPE = -1\n", {"1:27"}},
        {RuleId::NoSuchChoice, "_ORTHOVAL_SCANPERIOD_SETTINGS = 1, 5\n", {"1:33"}},
        {RuleId::NoSuchChoice,
         "_ORTHOVAL_WILDCARD_TYPE = 5\n_ORTHOVAL_WATERMARKS_OVERWRITE = -1\n_ORTHOVAL_REPORT_AUTOGETMODELS = "
         "-7\n"
         "_ORTHOVAL_LOG_FILE_DEBUGLEVEL = 02\n_ORTHOVAL_CERTIFY_CHECK_REFERENCE_WATERMARKS = 0\n",
         {}},
        {RuleId::UnbalancedQuotes, "_ORTHOVAL_TITLEBLOCK_CELLS = a\"b\n", {"1:30"}},
        {RuleId::UnbalancedQuotes, "_ORTHOVAL_CHECK_IGNORED_LEVELS = \"a,b\n", {"1:34"}},
        {RuleId::UnbalancedQuotes,
         "_ORTHOVAL_TITLEBLOCK_TAGVALUES = x\n_ORTHOVAL_TITLEBLOCK_TAGVALUES > y\"z\n",
         {"2:34"}},
        {RuleId::UnbalancedQuotes, "_ORTHOVAL_TITLEBLOCK_CELLS = a\"b\"c\n_ORTHOVAL_MENU_NAME = a\"b\n", {}},
        {RuleId::BadTemplate,
         "_ORTHOVAL_WILDCARD_TYPE = 4\n_ORTHOVAL_CONVENTION_MODELNAME = a(b\n",
         {"2:34"}},
        {RuleId::BadTemplate,
         "_ORTHOVAL_CONVENTION_FILENAME = ok\n_ORTHOVAL_CONVENTION_FILENAME > "
         "\"[a\"\n_ORTHOVAL_WILDCARD_TYPE = 4\n",
         {"2:33"}},
        {RuleId::BadTemplate,
         "_ORTHOVAL_WILDCARD_TYPE = 4\n_ORTHOVAL_CONVENTION_FILENAME = *;a(\n",
         {"2:33", "2:33"}},
        {RuleId::BadTemplate, "_ORTHOVAL_WILDCARD_TYPE = 3\n_ORTHOVAL_CONVENTION_FILENAME = [a\n", {}},
        {RuleId::BadTemplate, "_ORTHOVAL_CONVENTION_FILENAME = [a\n", {}},
        {RuleId::ImpossibleDay, "_ORTHOVAL_SCANPERIOD_VALUE = 2,31,4,2011\n", {"1:30"}},
        {RuleId::ValueChanges,
         "_ORTHOVAL_SCANPERIOD_SETTINGS = 1, 1, 0, 1, 1, 2011, 1, 2, 0, 0, 29, 2, 2011, 0\n",
         {}},
        {RuleId::ImpossibleDay, "_ORTHOVAL_SCANPERIOD_SETTINGS = 1,1,0,1,13,2011\n", {"1:33"}},
        {RuleId::ImpossibleDay,
         "_ORTHOVAL_SCANPERIOD_SETTINGS = 1, 1, 0, 1, 1, 2011, 1, 2, 0, 0, 29, 2, 2011, 0\n",
         {"1:33"}},
        {RuleId::ImpossibleDay,
         "_ORTHOVAL_SCANPERIOD_SETTINGS = 1, 1, 0, 29, 2, 2012, 1, 2, 0, 0, 31, 12, 1969, 0\n",
         {}},
        {RuleId::ImpossibleDay, "_ORTHOVAL_SCANPERIOD_SETTINGS = 1\n_ORTHOVAL_SCANPERIOD_VALUE = 5\n", {}},
        {RuleId::PathMissing, "_ORTHOVAL_DICT_DIR = /gone\n", {"1:22"}},
        {RuleId::PathMissing, "_ORTHOVAL_COLOURTABLES = /there;/gone\n", {"1:26"}},
        {RuleId::PathMissing, "_ORTHOVAL_BORDERSHEETS = /gone,A1\n", {"1:26"}},
        {RuleId::PathMissing,
         "_ORTHOVAL_REPORT_IGNORED_REFFILES = /gone/*.dgn;/gone/a?.dgn\n_ORTHOVAL_TITLEBLOCK_CELLS = /gone\n",
         {}},
        {RuleId::PathMissing,
         "_ORTHOVAL_DICT_DIR = /there\n_ORTHOVAL_SCRIPTS = $(X)/gone\n_ORTHOVAL_BORDERSHEETS = /there,A1\n"
         "_ORTHOVAL_CONVENTION_FILENAME_HELP_FILE = http://gone\n_ORTHOVAL_MENU_NAME = /gone\n",
         {}},
    });
}

TEST(Findings, OfPagesAndDefaults)
{
    ExpectPlaces({
        {RuleId::NoEffect, "_ORTHOVAL_TITLEBLOCK_CELLS = a\n", {"1:30"}},
        {RuleId::NoEffect,
         "_ORTHOVAL_DRAWINGSCALE_USE_DEFAULT = 1\n_ORTHOVAL_DRAWINGSCALE_VALUES = 1:50\n",
         {"2:33"}},
        {RuleId::NoEffect,
         "_ORTHOVAL_TITLEBLOCK_TAGVALUES = a\n_ORTHOVAL_BORDERSHEETS_DISALLOW_OUTSIDE = 1\n",
         {"1:34", "2:43"}},
        {RuleId::NoEffect, "_ORTHOVAL_CHECK_TITLEBLOCK = 1\n_ORTHOVAL_TITLEBLOCK_CELLS = a\n", {}},
        {RuleId::NoEffect, "_ORTHOVAL_TITLEBLOCK_DEFAULT_MODEL = 0\n_ORTHOVAL_TITLEBLOCK_CELLS = \n", {}},
        {RuleId::NoEffect, "_ORTHOVAL_REPORT_NAMING = $$USERINITIALS$$-$$CURRENTFILE$$\n", {}},
        {RuleId::EqualsDefault, "A = 1\nB = 2\n", {"2:5"}, "A = 2\nB = 2\n"},
        {RuleId::EqualsDefault, "A = a;b\n", {"1:5"}, "A = a\nA > b\n"},
        {RuleId::EqualsDefault, "A = \"x\"\n", {"1:5"}, "A = x\n"},
        {RuleId::EqualsDefault, "A = 1\n", {}, "a = 1\nB = 1\n"},
        {RuleId::EqualsDefault, "A = 1\n", {}},
        {RuleId::ListsDiffer,
         "_ORTHOVAL_CONVENTION_MODELNAME = a\n_ORTHOVAL_CONVENTION_MODELNAME_DESCR = b;c\n",
         {"2:40"}},
        {RuleId::ListsDiffer,
         "_ORTHOVAL_CONVENTION_FILENAME = a;b\n_ORTHOVAL_CONVENTION_FILENAME_DESCR = one\n",
         {"2:39"}},
        {RuleId::ListsDiffer,
         "_ORTHOVAL_CONVENTION_FILENAME = a\n_ORTHOVAL_CONVENTION_FILENAME_DESCR = one\n"
         "_ORTHOVAL_CONVENTION_FILENAME_DESCR > two\n",
         {"3:39"}},
        {RuleId::ListsDiffer,
         "_ORTHOVAL_CONVENTION_FILENAME = a;b;\n_ORTHOVAL_CONVENTION_FILENAME_DESCR = x;y\n",
         {}},
        {RuleId::ListsDiffer,
         "_ORTHOVAL_CONVENTION_FILENAME = a;b\n_ORTHOVAL_CONVENTION_FILENAME_DESCR = \n",
         {}},
        {RuleId::ListsDiffer,
         "_ORTHOVAL_CONVENTION_FILENAME = \n_ORTHOVAL_CONVENTION_FILENAME_DESCR = a;b\n",
         {}},
    });
}

TEST(Findings, PointToCharactersNotToBytes)
{
    EXPECT_EQ(PlacesOf(RuleId::InheritedList, "\xC3\xA9\xC3\xA9 > 1\n"), (Places{"1:6"}));
    EXPECT_EQ(PlacesOf(RuleId::InheritedList, "\xE9\xE9 > 1\n"), (Places{"1:6"}));
}

TEST(Findings, SayWhatBecomesOfAValue)
{
    const auto changed = FindingsOf(RuleId::ValueChanges, "A = a #b\nB = ;\n");
    ASSERT_EQ(changed.size(), 2u);
    EXPECT_EQ(changed[0].variable, u"A");
    EXPECT_EQ(changed[0].before, u"a #b");
    EXPECT_EQ(changed[0].after, u"a ");
    EXPECT_EQ(changed[1].before, u";");
    EXPECT_EQ(changed[1].after, std::nullopt);
}

TEST(Findings, SayWhatTheReaderMakesOfALine)
{
    const auto has = [](const ov::Finding& finding, const char* part) {
        return finding.message.find(part) != std::string::npos;
    };
    const auto operators = FindingsOf(RuleId::MalformedOperator, "NAME= C:\\x y\nA =1\n");
    ASSERT_EQ(operators.size(), 2u);
    EXPECT_TRUE(has(operators[0], "\":\"") && has(operators[0], "\"y\"")) << operators[0].message;
    EXPECT_TRUE(has(operators[1], "\"=\"") && has(operators[1], "an empty value")) << operators[1].message;
    const auto ignored = FindingsOf(RuleId::LineIgnored, "A= value\n=A value\n");
    ASSERT_EQ(ignored.size(), 2u);
    EXPECT_TRUE(has(ignored[0], "a blank on both sides"));
    EXPECT_FALSE(has(ignored[1], "a blank on both sides"));
    const auto again = FindingsOf(RuleId::AssignedAgain, "A = 1\nB = 1\nA = 2\n");
    ASSERT_EQ(again.size(), 1u);
    EXPECT_TRUE(has(again[0], "Line 3")) << again[0].message;
}

TEST(Findings, SayWhatTheDialogMakesOfAValue)
{
    const auto flags =
        FindingsOf(RuleId::NotAFlag, "_ORTHOVAL_CHECK_CELLS = Yes\n_ORTHOVAL_REPORT_REF_UNSCALE_DIMS = Yes\n"
                                     "_ORTHOVAL_TITLEBLOCK_COUNT_EDF = Yes\n");
    ASSERT_EQ(flags.size(), 3u);
    EXPECT_TRUE(flags[0].message.ends_with("_ORTHOVAL_CHECK_CELLS for 0")) << flags[0].message;
    EXPECT_TRUE(flags[1].message.ends_with("_ORTHOVAL_REPORT_REF_UNSCALE_DIMS for 1")) << flags[1].message;
    EXPECT_TRUE(flags[2].message.ends_with("_TITLEBLOCK_COUNT_EDF for 0, and keeps the text"))
        << flags[2].message;
    const auto templates =
        FindingsOf(RuleId::BadTemplate, "_ORTHOVAL_WILDCARD_TYPE = 4\n_ORTHOVAL_CONVENTION_MODELNAME = (\n");
    ASSERT_EQ(templates.size(), 1u);
    EXPECT_TRUE(templates[0].message.ends_with("at position 2")) << templates[0].message;
}

TEST(Findings, NameTheCharacterThatSaveRefuses)
{
    const auto inComment =
        FindingsOf(RuleId::CharacterRefused, "# \xE9\nB = 1\nA = 1\n", "#\n\n# \xC5\x81\nA = 1\n");
    ASSERT_EQ(inComment.size(), 1u);
    EXPECT_EQ(inComment[0].variable, u"A");
    EXPECT_NE(inComment[0].message.find("\xC5\x81"), std::string::npos) << inComment[0].message;
    ov::InspectionSettings settings;
    settings.today = std::chrono::year(2026) / 11 / 20;
    settings.header.machine = {u"Friday", u"\u0141. Reeve", u"CAD-07"};
    const auto inHeader =
        ov::Inspector(settings).Inspect(ov::InspectedFile("# n\nA = \xE9\n", ov::Charset::Windows1252));
    EXPECT_TRUE(std::ranges::any_of(inHeader, [](const ov::Finding& finding) {
        return finding.rule == RuleId::CharacterRefused && !finding.variable;
    }));
}

TEST(Findings, CountTheSettingsThatSaveAddsOnceAFile)
{
    ExpectPlaces({
        {RuleId::SettingsAdded, "", {"1:1"}},
        {RuleId::SettingsAdded, "A = 1\n\nB = 2\n", {"1:1"}},
        {RuleId::SettingsAdded, "# header\n\n_ORTHOVAL_CHECK_TAGS = 1\n", {"1:1"}},
    });
    // A saved file has them all.
    ov::InspectionSettings settings;
    settings.today =
        std::chrono::year_month_day(std::chrono::year(2026), std::chrono::month(11), std::chrono::day(20));
    const std::string saved =
        ov::PreviewSave(ov::InspectedFile("A = 1\n", ov::Charset::Windows1252), settings).bytes;
    EXPECT_EQ(PlacesOf(RuleId::SettingsAdded, saved), Places{});
}

TEST(Findings, NameTheSettingsThatSaveAdds)
{
    const auto found = FindingsOf(RuleId::SettingsAdded, "_ORTHOVAL_CHECK_CELLS = 1\n");
    ASSERT_EQ(found.size(), 1u);
    const auto& added = found[0].added;
    EXPECT_TRUE(std::ranges::is_sorted(added));
    const auto has = [&](ov::TextView name, ov::TextView value) {
        return std::ranges::any_of(
            added, [&](const auto& each) { return each.first == name && each.second == value; });
    };
    EXPECT_TRUE(has(u"_ORTHOVAL_CHECK_TEXT", u"0"));
    EXPECT_TRUE(has(u"_ORTHOVAL_REPORT_AUTOGETMODELS", u"6"));
    EXPECT_FALSE(has(u"_ORTHOVAL_CHECK_CELLS", u"1"));
    // The server's version and the two counts of fields are never written.
    EXPECT_EQ(added.size(), 175u - 1u - 3u);
    EXPECT_NE(found[0].message.find("171 settings"), std::string::npos) << found[0].message;
}

} // namespace
