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
     "A line begins with \"%\". The dialog skips directives and Save does not write them. An included file "
     "is then no longer included, and lines between \"%if\" and \"%endif\" always apply. Keep directives in "
     "a separate file that is never opened in the dialog.",
     "%include common.cfg\n_ORTHOVAL_CHECK_CELLS = 1\n", ""},
    {RuleId::LineIgnored, "OV102", "line-ignored", Warning, true,
     "A line without an operator, which Save drops",
     "This line has no operator: the reader ignores it and Save drops it{hint}",
     "A line that is neither blank nor a comment nor a directive has no operator as its second word. The "
     "reader needs a blank on both sides of the operator: \"NAME=value\" is one word, and so is not an "
     "assignment. Add the blanks, or put \"#\" in front of the line.",
     "_ORTHOVAL_CHECK_CELLS=1\n", ""},
    {RuleId::HeaderReplaced, "OV103", "header-replaced", Note, true,
     "A header that Save replaces with its own",
     "Save replaces the comment lines above the first blank line with its own header",
     "The comment lines above the first blank line are the header of the file, and Save writes its own "
     "header in their place. Move the text below a blank line, directly above a variable, and it becomes "
     "that variable's comment.",
     "# The York office's settings. Ask the CAD desk before changing them.\n\n_ORTHOVAL_CHECK_CELLS = 1\n",
     ""},
    {RuleId::CommentLost, "OV104", "comment-lost", Warning, true,
     "A comment that belongs to no variable, which Save drops",
     "Save drops the comment that begins here: {reason}",
     "A comment belongs to the variable whose first line follows it. Above a further line of a variable, or "
     "below the last variable, a comment belongs to nothing, and Save drops it. Move it above the first "
     "line of a variable.",
     "_ORTHOVAL_TITLEBLOCK_CELLS = HR-A1\n# For the joint venture only.\n_ORTHOVAL_TITLEBLOCK_CELLS > "
     "JV-A1\n",
     ""},
    {RuleId::InheritedList, "OV105", "inherited-list", Warning, true,
     "A list that extends an inherited one, which Save ends",
     "Save writes \"=\" in place of \"{operator}\", which ends what an earlier configuration level gave "
     "{variable}",
     "The first line of a variable in this file extends the value from another configuration level (\">\", "
     "\"<\", \"+\"), or applies only when there is none (\":\"). Save writes every variable with \"=\", so "
     "the other level's value no longer counts.",
     "_ORTHOVAL_COLOURTABLES > P:\\tables\\jv.tbl\n", ""},
    {RuleId::ValueChanges, "OV106", "value-changes", Warning, true, "A value that a Save changes",
     "Save changes the value of {variable}: {change}",
     "The value that is read after one Save differs from the value that is read now. Save puts texts into "
     "quotes, and a \"#\" inside quotes ends the value the next time it is read. Quotes inside a list "
     "disappear, empty entries of a list are dropped, and a page may write a value in another form.",
     "_ORTHOVAL_CERTIFY_PREWATERMARK_KEYIN = plotlog #2\n", ""},
    {RuleId::AssignedAgain, "OV107", "assigned-again", Warning, true, "A line that a later one overrides",
     "Line {line} assigns {variable} again; this line has no effect",
     "A later \"=\" line of the same variable discards what this line says. Save writes only the later "
     "value. Remove one of the lines.",
     "_ORTHOVAL_CHECK_CELLS = 1\n_ORTHOVAL_CHECK_CELLS = 0\n", ""},
    {RuleId::CharacterRefused, "OV108", "character-refused", Error, true,
     "A character because of which Save refuses the file",
     "Save refuses the file: its encoding lacks the character \"{character}\" in {place}",
     "Save would have to write a character that does not exist in the encoding of the file. It comes from a "
     "comment of the defaults file, or is part of the user's or computer's name in the header. Save writes "
     "nothing then. Convert both files to the same encoding.",
     "# Caf{E9}\n\nHR_OFFICE = York\n_ORTHOVAL_CHECK_CELLS = 1\n",
     "#\n\n# {C5}{81}{C3}{B3}d{C5}{BA}\n_ORTHOVAL_CHECK_CELLS = 1\n"},
    {RuleId::EntryCut, "OV109", "entry-cut", Note, true, "A list entry that the list editor cuts",
     "An entry of {variable} has {count} characters; the list editor keeps 1024 of them",
     "The dialog's list editor cuts an entry after 1024 characters. The value remains whole as long as "
     "nobody edits the list with the \"...\" button.",
     "_ORTHOVAL_CHECK_IGNORED_LEVELS = {1100 letters}\n", ""},
    {RuleId::MalformedOperator, "OV110", "malformed-operator", Warning, true,
     "An operator with other characters around it",
     "\"{token}\" is no operator; the reader takes it for \"{operator}\" and gives {variable} {value}",
     "The second word of the line contains an operator but is not exactly \"=\", \">\", \"<\", \"+\" or "
     "\":\". The reader uses the operator that it finds in the word, and takes only the text after the word "
     "as the value. Put one blank on each side of the operator.",
     "_ORTHOVAL_CHECK_CELLS =1\n", ""},
    {RuleId::ConflictMarker, "OV111", "conflict-marker", Error, true, "A conflict marker of a merge",
     "A merge has left this conflict marker",
     "A line of seven \"<\", \"=\" or \">\", which a merge leaves where both sides changed the same lines. "
     "Decide which lines are right and remove the markers.",
     "<<<<<<< ours\n_ORTHOVAL_CHECK_CELLS = 1\n=======\n_ORTHOVAL_CHECK_CELLS = 0\n>>>>>>> theirs\n", ""},
    {RuleId::HeaderRepeats, "OV112", "header-repeats", Warning, true, "A header that each Save repeats",
     "{variable} comes first and has no comment: the header becomes its comment, and each Save adds another "
     "copy",
     "The first variable in name order has no comment, neither in this file nor in the defaults file. Save "
     "writes it directly below the header. The next time the file is read, the header is taken for the "
     "comment of this variable, and every Save adds another header above it. Give the variable a comment "
     "with a blank line above it.",
     "HR_OFFICE = York\n", ""},
    {RuleId::ByteOrderMark, "OV113", "byte-order-mark", Warning, true, "A byte-order mark",
     "The file begins with a byte-order mark, which the reader takes into the first line",
     "For the reader the three bytes of the byte-order mark are part of the first line. A variable on this "
     "line gets another name, and a comment line is taken for an assignment. Save the file as UTF-8 without "
     "a byte-order mark.",
     "{EF}{BB}{BF}_ORTHOVAL_CHECK_CELLS = 1\n", ""},
    {RuleId::NotPlainText, "OV114", "not-plain-text", Error, true, "A file that the dialog cannot read",
     "The dialog would take nothing from this file: {reason}",
     "The file is in UTF-16, or its lines end in CR only. The reader finds no settings in it, and Save "
     "would write a file without them. Convert it to UTF-8 or Windows-1252, with lines that end in LF or CR "
     "LF.",
     "#{0D}_ORTHOVAL_CHECK_CELLS = 1{0D}", ""},
    {RuleId::SettingsAdded, "OV115", "settings-added", Note, true, "Settings that Save adds",
     "Save adds {count} settings that this file leaves to other levels of the configuration",
     "Save writes every setting of every page, also those that the file does not have: flags as off and "
     "texts as empty, or as the program's defaults have them. From then on the values from other "
     "configuration levels no longer count. The JSON output lists the names and values.",
     "_ORTHOVAL_CHECK_CELLS = 1\n", ""},
    {RuleId::UnknownVariable, "OV201", "unknown-variable", Warning, true, "A name that is on no page",
     "No page has a setting {variable}{hint}",
     "The name begins like the settings of this product, or differs from one of them only in the case of "
     "letters or in one or two letters, but no page has it. Names are case-sensitive.",
     "_ORTHOVAL_CHECK_CELS = 1\n", ""},
    {RuleId::NotAFlag, "OV202", "not-a-flag", Warning, true, "A flag that is neither 0 nor 1",
     "\"{value}\" is no flag: the dialog takes {variable} for {meaning}",
     "A flag is \"0\" or \"1\". The dialog compares the whole text, so a word, a macro or a comment after "
     "the value makes it something else. Save writes what the dialog took it for.",
     "_ORTHOVAL_CHECK_CELLS = Yes\n", ""},
    {RuleId::NotANumber, "OV203", "not-a-number", Warning, true, "A number that is none, or out of range",
     "\"{value}\" is {problem}",
     "The setting is a number, but its value is not, or it lies outside the range of its control. The "
     "dialog keeps the text as it is; other programs may not understand it.",
     "_ORTHOVAL_REPORT_MAXLOGGABLE = many\n", ""},
    {RuleId::NoSuchChoice, "OV204", "no-such-choice", Warning, true, "A choice that does not exist",
     "\"{value}\" {problem}",
     "The setting is chosen from a list or with radio buttons, but its value selects none of the choices, "
     "or a different one than it says. Save writes what is selected.",
     "_ORTHOVAL_PROMPT_COLOURTABLE_REMAP = 7\n", ""},
    {RuleId::UnbalancedQuotes, "OV205", "unbalanced-quotes", Error, true, "Quotes that do not match",
     "{variable} has an odd number of quotes: the list editor refuses it",
     "Quotes enclose an entry that contains a separator, so their number is even. The list editor does not "
     "open a value with an odd number, because the ends of its entries are unknown.",
     "_ORTHOVAL_TITLEBLOCK_CELLS = HR-A1;\"HR-A3\n", ""},
    {RuleId::BadTemplate, "OV206", "bad-template", Error, true, "A template that does not compile",
     "The template \"{value}\" does not compile: {problem}",
     "A template for file or model names is not a valid expression of the type that _ORTHOVAL_WILDCARD_TYPE "
     "in the same file selects. It matches nothing. Only Perl expressions are compiled; the other types "
     "accept any text.",
     "_ORTHOVAL_WILDCARD_TYPE = 4\n_ORTHOVAL_CONVENTION_FILENAME = HR[0-9.dgn\n", ""},
    {RuleId::ImpossibleDay, "OV207", "impossible-date", Warning, true, "A date that does not exist",
     "{variable} has a date that does not exist: {value}",
     "Day, month and year of the scan period are not a date, or a date that the dialog does not take "
     "(before 31 December 1969, after the year 9999). The dialog shows another date, or reports this one "
     "when it opens.",
     "_ORTHOVAL_SCANPERIOD_SETTINGS = 1, 1, 0, 31, 2, 2011, 0, 2, 0, 0, 6, 5, 2016, 0\n", ""},
    {RuleId::PathMissing, "OV208", "path-missing", Warning, false, "A file or folder that does not exist",
     "\"{value}\" does not exist here",
     "The setting names a file or folder that does not exist on this computer. Values with $(...) and web "
     "addresses are skipped. This rule is off unless it is selected, because a file is often checked on "
     "another computer than the one that uses it.",
     "_ORTHOVAL_DICT_DIR = /no/such/folder\n", ""},
    {RuleId::NoEffect, "OV301", "no-effect", Note, true, "A setting that other settings disable",
     "{variable} has no effect: {reason}",
     "The setting has a value, but the page disables or hides its control because of other values in the "
     "file. The setting takes effect when those values change.",
     "_ORTHOVAL_CHECK_TITLEBLOCK = 0\n_ORTHOVAL_TITLEBLOCK_CELLS = HR-A1\n", ""},
    {RuleId::EqualsDefault, "OV302", "equals-default", Note, false, "A value that equals the defaults file's",
     "{variable} has the value of the defaults file",
     "The defaults file gives the variable the same value, so this file does not have to set it. This rule "
     "is off unless it is selected; it needs a defaults file.",
     "_ORTHOVAL_CHECK_CELLS = 1\n", "_ORTHOVAL_CHECK_CELLS = 1\n"},
    {RuleId::ListsDiffer, "OV303", "lists-differ", Warning, true,
     "Templates and descriptions that differ in number",
     "{variable} has {count} descriptions for {templates} templates",
     "Each template for file or model names has one description, in the same order. When the numbers "
     "differ, users read the description of another template.",
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
