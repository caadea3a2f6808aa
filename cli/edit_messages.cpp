#include "cli/edit_messages.h"

namespace ov::cli
{
namespace
{

// The part of a value that the file's syntax cannot represent, for a value that does not read back.
std::string ValueProblem(const Text& value)
{
    const bool list = value.find(u';') != Text::npos;
    if (value.find_first_of(u"\r\n") != Text::npos)
        return "a value with a line break cannot be kept";
    if (value.find(u'"') != Text::npos)
        return "a value with quotes cannot be kept";
    if (!list && value.find(u'#') != Text::npos)
        return "a value with # cannot be kept";
    if (list)
        return "a list with empty entries, or with blanks around an entry, cannot be kept";
    if (Trim(value) != value)
        return "a value with blanks at its ends cannot be kept";
    return "this value cannot be kept";
}

std::string ReasonText(const RefusedEdit& refused)
{
    switch (refused.reason) {
    case EditRefusal::NotPlainText:
        return "the file is not plain text: " + Utf8FromText(refused.detail);
    case EditRefusal::Conditional:
        return "a variable that is assigned between %if and %endif is not edited";
    case EditRefusal::EndsInCondition:
        return "an %if is open at the end of the file; a new variable would depend on it";
    case EditRefusal::CharacterLacking:
        return "the file's encoding lacks the character '" + Utf8FromText(refused.detail) +
               "'; see --encoding";
    case EditRefusal::EmptyEntry:
        return "an empty entry cannot be kept";
    case EditRefusal::SeveralEntries:
        return "an entry with " + Utf8FromText(refused.detail) + " cannot be kept";
    case EditRefusal::QuotesPair:
        return "with unpaired quotes in its entries the list would have other entries";
    case EditRefusal::ListNotPlain:
        return "its lines do not show where its entries begin and end";
    case EditRefusal::NameNotKept:
        return "a variable with this name cannot be kept";
    case EditRefusal::ValueNotKept:
        return ValueProblem(refused.detail);
    case EditRefusal::OtherChanged:
        return "this variable, which was not named, would change";
    case EditRefusal::EncodingChanged:
        break;
    }
    return "the file would be taken for one in another encoding; see --encoding";
}

} // namespace

std::string RefusalText(const RefusedEdit& refused)
{
    return Utf8FromText(refused.name) + ": " + ReasonText(refused);
}

} // namespace ov::cli
