#include "inspect/core/rules.h"

#include <algorithm>
#include <charconv>

namespace ov
{
namespace
{
using enum Severity;

constexpr Rule rules[] = {
    {RuleId::DirectiveLost, "OV101", "directive-lost", Warning, true, "A directive, which Save drops",
     "Save drops this directive",
     "A line begins with \"%\". The dialog reads past directives, and Save does not write them: an included "
     "file "
     "is no longer included, and what stood under a condition applies always. Keep directives in a file of "
     "their own that the dialog never saves.",
     "%include common.cfg\n_ORTHOVAL_CHECK_CELLS = 1\n", ""},
    {RuleId::LineIgnored, "OV102", "line-ignored", Warning, true,
     "A line without an operator, which Save drops",
     "This line has no operator: the reader ignores it and Save drops it{hint}",
     "A line that is neither blank nor a comment nor a directive has no operator as its second word. The "
     "reader "
     "needs a blank on both sides of the operator; without them it does not take the line for an assignment. "
     "Put "
     "the blanks in, or \"#\" in front of the line.",
     "_ORTHOVAL_CHECK_CELLS=1\n", ""},
    {RuleId::HeaderReplaced, "OV103", "header-replaced", Note, true, "A header that Save replaces by its own",
     "Save replaces the comment lines above the first blank line by a header of its own",
     "The comment lines above the first blank line are the file's header, and Save writes its own in their "
     "place. "
     "Put what is to stay below a blank line, directly above a variable.",
     "# The York office's settings. Ask the CAD desk before changing them.\n\n_ORTHOVAL_CHECK_CELLS = 1\n",
     ""},
    {RuleId::CommentLost, "OV104", "comment-lost", Warning, true,
     "A comment that no variable takes, which Save drops",
     "Save drops the comment that begins here: {reason}",
     "A comment belongs to the variable whose first line follows. Above a further line of a variable, or "
     "behind "
     "the last variable, nothing takes it, and Save drops it. Move it above the first line of a variable.",
     "_ORTHOVAL_TITLEBLOCK_CELLS = HR-A1\n# For the joint venture only.\n_ORTHOVAL_TITLEBLOCK_CELLS > "
     "JV-A1\n",
     ""},
    {RuleId::InheritedList, "OV105", "inherited-list", Warning, true,
     "A list that adds to an inherited one, which Save ends",
     "Save writes \"=\" in place of \"{operator}\", which ends what an earlier configuration level gave "
     "{variable}",
     "The first line of a variable in this file adds to the value that another level of the configuration "
     "gives "
     "(\">\", \"<\", \"+\"), or counts only without one (\":\"). Save writes every variable with \"=\", so "
     "that "
     "the other level's value no longer counts.",
     "_ORTHOVAL_COLOURTABLES > P:\\tables\\jv.tbl\n", ""},
    {RuleId::ValueChanges, "OV106", "value-changes", Warning, true,
     "A value that is another one after a Save", "Save changes the value of {variable}: {change}",
     "The value that is read after one Save differs from the one that is read now. A \"#\" in a text ends it "
     "once "
     "Save has put it into quotes, quotes inside a list disappear, empty entries of a list are dropped, and "
     "a page "
     "may write a value in another way.",
     "_ORTHOVAL_CERTIFY_PREWATERMARK_KEYIN = plotlog #2\n", ""},
    {RuleId::AssignedAgain, "OV107", "assigned-again", Warning, true, "A line that a later one discards",
     "Line {line} assigns {variable} again; this line has no effect",
     "A later line of the same variable with \"=\" discards what this line says. Save writes the later value "
     "only.",
     "_ORTHOVAL_CHECK_CELLS = 1\n_ORTHOVAL_CHECK_CELLS = 0\n", ""},
    {RuleId::CharacterRefused, "OV108", "character-refused", Error, true,
     "A character for which Save refuses the file",
     "Save refuses the file: its encoding lacks the character \"{character}\" in {place}",
     "Save would have to write a character that the file's encoding does not have: a comment that comes from "
     "the "
     "defaults file, or the user's or computer's name in the header. Nothing is written then. Save both "
     "files in "
     "the same encoding.",
     "# Caf{E9}\n\n_ORTHOVAL_CHECK_CELLS = 1\n",
     "#\n\n# {C5}{81}{C3}{B3}d{C5}{BA}\n_ORTHOVAL_CHECK_CELLS = 1\n"},
    {RuleId::EntryCut, "OV109", "entry-cut", Note, true, "A list entry that the list editor cuts",
     "An entry of {variable} has {count} characters; the list editor keeps 1024 of them",
     "The dialog's list editor cuts an entry after 1024 characters. The value stays whole until the list is "
     "edited with the \"...\" button.",
     "_ORTHOVAL_CHECK_IGNORED_LEVELS = {1100 letters}\n", ""},
    {RuleId::MalformedOperator, "OV110", "malformed-operator", Warning, true,
     "An operator with other characters around it",
     "\"{token}\" is no operator; the reader takes it for \"{operator}\" and gives {variable} {value}",
     "The second word of the line has an operator in it but is not exactly one of \"=\", \">\", \"<\", \"+\" "
     "and "
     "\":\". The reader goes by the character that it finds, and takes only what follows the word for the "
     "value. "
     "Put one blank on each side of the operator.",
     "_ORTHOVAL_CHECK_CELLS =1\n", ""},
    {RuleId::ConflictMarker, "OV111", "conflict-marker", Error, true, "A conflict marker of a merge",
     "A merge has left this conflict marker",
     "A line of seven \"<\", \"=\" or \">\", as a merge leaves it where both sides changed the same lines. "
     "Decide "
     "which lines are to stay and remove the markers.",
     "<<<<<<< ours\n_ORTHOVAL_CHECK_CELLS = 1\n=======\n_ORTHOVAL_CHECK_CELLS = 0\n>>>>>>> theirs\n", ""},
    {RuleId::HeaderRepeats, "OV112", "header-repeats", Warning, true, "A header that each Save repeats",
     "{variable} comes first and has no comment: the header becomes its comment, and each Save adds another "
     "copy",
     "The first variable in the order of the names has no comment in this file or in the defaults file. Save "
     "writes "
     "it directly below the header. The next time the file is read, the header is taken for the variable's "
     "comment, "
     "and every Save adds another header above it. Give the variable a comment, with a blank line above.",
     "HR_OFFICE = York\n", ""},
    {RuleId::ByteOrderMark, "OV113", "byte-order-mark", Warning, true, "A byte-order mark",
     "The file begins with a byte-order mark, which the reader takes into the first line",
     "The three bytes at the beginning of the file are part of its first line for the reader: a variable on "
     "this "
     "line gets another name, and a comment line is taken for an assignment. Save the file in UTF-8 without "
     "a "
     "byte-order mark.",
     "{EF}{BB}{BF}_ORTHOVAL_CHECK_CELLS = 1\n", ""},
    {RuleId::NotPlainText, "OV114", "not-plain-text", Error, true, "A file that the dialog cannot read",
     "The dialog would take nothing from this file: {reason}",
     "The file is in UTF-16, or its lines end in CR only. The reader finds no lines in it, and Save would "
     "write a "
     "file without any of its settings. Save it in UTF-8 or Windows-1252, with lines that end in LF or CR "
     "LF.",
     "#{0D}_ORTHOVAL_CHECK_CELLS = 1{0D}", ""},
    {RuleId::SettingsAdded, "OV115", "settings-added", Note, true, "Settings that Save adds",
     "Save adds {count} settings that this file leaves to other levels of the configuration",
     "Save writes every setting of every page, also those that the file does not have. From then on what "
     "another "
     "level of the configuration says about them no longer counts: flags are off and texts are empty. The "
     "JSON "
     "output has their names and values.",
     "_ORTHOVAL_CHECK_CELLS = 1\n", ""},
    {RuleId::UnknownVariable, "OV201", "unknown-variable", Warning, true, "A name that no page has",
     "No page has a setting {variable}{hint}",
     "The name begins as those of this product's settings do, or is one of them but for the case of letters "
     "or "
     "for one or two letters, and no page has it. Names are compared with the case of letters.",
     "_ORTHOVAL_CHECK_CELS = 1\n", ""},
    {RuleId::NotAFlag, "OV202", "not-a-flag", Warning, true, "A flag that is neither 0 nor 1",
     "\"{value}\" is no flag: the dialog takes {variable} for {meaning}",
     "A flag is \"0\" or \"1\". The dialog compares the whole text: a word, a macro, or a comment behind the "
     "value "
     "makes it something else, and Save writes what the dialog took it for.",
     "_ORTHOVAL_CHECK_CELLS = Yes\n", ""},
    {RuleId::NotANumber, "OV203", "not-a-number", Warning, true, "A number that is none, or out of its range",
     "\"{value}\" is {problem}",
     "The setting is a number, and its value is none or lies outside the range of its control. The dialog "
     "keeps "
     "what was typed, but nothing else can be expected to understand it.",
     "_ORTHOVAL_REPORT_MAXLOGGABLE = many\n", ""},
    {RuleId::NoSuchChoice, "OV204", "no-such-choice", Warning, true, "A choice that does not exist",
     "\"{value}\" {problem}",
     "The setting is chosen from a list or by radio buttons, and its value selects none of them, or another "
     "one "
     "than it says. Save writes what is selected then.",
     "_ORTHOVAL_PROMPT_COLOURTABLE_REMAP = 7\n", ""},
    {RuleId::UnbalancedQuotes, "OV205", "unbalanced-quotes", Error, true, "Quotes that do not match",
     "{variable} has an odd number of quotes: the list editor refuses it",
     "Quotes enclose what holds a separator, so that their number is even. The dialog's list editor does not "
     "open "
     "a value with an odd number, and nobody knows where its entries end.",
     "_ORTHOVAL_TITLEBLOCK_CELLS = HR-A1;\"HR-A3\n", ""},
    {RuleId::BadTemplate, "OV206", "bad-template", Error, true, "A template that does not compile",
     "The template \"{value}\" does not compile: {problem}",
     "A template for file or model names is no valid expression of the type that _ORTHOVAL_WILDCARD_TYPE in "
     "the "
     "same file selects. Nothing matches it. Only Perl expressions are compiled; the other types take any "
     "text.",
     "_ORTHOVAL_WILDCARD_TYPE = 4\n_ORTHOVAL_CONVENTION_FILENAME = HR[0-9.dgn\n", ""},
    {RuleId::ImpossibleDay, "OV207", "impossible-date", Warning, true, "A date that does not exist",
     "{variable} has a date that does not exist: {value}",
     "A day, month and year of the scan period are no date, or one that the dialog does not take (before 31 "
     "December 1969, after the year 9999). The dialog shows another date or reports it when it opens.",
     "_ORTHOVAL_SCANPERIOD_SETTINGS = 1, 1, 0, 31, 2, 2011, 0, 2, 0, 0, 6, 5, 2016, 0\n", ""},
    {RuleId::PathMissing, "OV208", "path-missing", Warning, false, "A file or folder that does not exist",
     "\"{value}\" does not exist here",
     "The setting names a file or folder that does not exist on this computer. Values with $(...) and web "
     "addresses are left out. Off unless it is selected, since the file may be checked elsewhere than it is "
     "used.",
     "_ORTHOVAL_DICT_DIR = /no/such/folder\n", ""},
    {RuleId::NoEffect, "OV301", "no-effect", Note, true, "A setting that other settings switch off",
     "{variable} has no effect: {reason}",
     "The setting has a value, but the page shows its control disabled or hidden because of other values of "
     "the "
     "file. It takes effect when those change.",
     "_ORTHOVAL_CHECK_TITLEBLOCK = 0\n_ORTHOVAL_TITLEBLOCK_CELLS = HR-A1\n", ""},
    {RuleId::EqualsDefault, "OV302", "equals-default", Note, false,
     "A value that the defaults file has as well", "{variable} has the value of the defaults file",
     "The defaults file gives the variable the same value, so that this file need not say it. Off unless it "
     "is "
     "selected; needs a defaults file.",
     "_ORTHOVAL_CHECK_CELLS = 1\n", "_ORTHOVAL_CHECK_CELLS = 1\n"},
    {RuleId::ListsDiffer, "OV303", "lists-differ", Warning, true,
     "Templates and descriptions that differ in number",
     "{variable} has {count} descriptions for {templates} templates",
     "Each template for file or model names has one description, in the same order. When the numbers differ, "
     "users "
     "read the description of another template.",
     "_ORTHOVAL_CONVENTION_FILENAME = A*.dgn;B*.dgn\n_ORTHOVAL_CONVENTION_FILENAME_DESCR = Plans\n", ""},
};
} // namespace

const char* SeverityName(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return "error";
    case Severity::Warning:
        return "warning";
    case Severity::Note:
        break;
    }
    return "note";
}

std::span<const Rule> Rules()
{
    return rules;
}

const Rule& RuleOf(RuleId rule)
{
    return rules[static_cast<std::size_t>(rule)];
}

std::string ExampleBytes(std::string_view example)
{
    constexpr std::string_view kLetters = "{1100 letters}";
    std::string bytes;
    while (!example.empty()) {
        if (example.starts_with(kLetters)) {
            bytes.append(1100, 'x');
            example.remove_prefix(kLetters.size());
        } else if (example.front() == '{') {
            int byte = 0;
            std::from_chars(example.data() + 1, example.data() + 3, byte, 16);
            bytes.push_back(static_cast<char>(byte));
            example.remove_prefix(4);
        } else {
            bytes.push_back(example.front());
            example.remove_prefix(1);
        }
    }
    return bytes;
}

bool IsLoss(const Rule& rule)
{
    return std::string_view(rule.id).starts_with("OV1");
}

RuleSet::RuleSet()
{
    for (const Rule& rule : rules)
        m_contains.push_back(rule.byDefault);
}

void RuleSet::Clear()
{
    m_contains.assign(m_contains.size(), false);
}

bool RuleSet::Set(std::string_view which, bool contains)
{
    bool any = false;
    for (const Rule& rule : rules) {
        if (which == "all" || (which.size() >= 2 && std::string_view(rule.id).starts_with(which))) {
            m_contains[static_cast<std::size_t>(rule.rule)] = contains;
            any = true;
        }
    }
    return any;
}

} // namespace ov
