// The lines of a document, and edits of one variable: all that must hold of any edit holds.
//
// Input: a line with two numbers, what to do (0 set, 1 unset, 2 list) and the encoding (0 as
// detected, 1 UTF-8, 2 Windows-1252); a line with the name; a line with the value, or with entries to
// remove, to prepend and to append, each after a "-", "<" or ">" and before a tab; then the file.

#include "tests/core/edit_properties.h"
#include "tests/fuzz/fuzz_input.h"

#include <string>

namespace ov::fuzz
{
namespace
{

ListChange ChangeOf(std::string_view line)
{
    ListChange change;
    while (!line.empty()) {
        const std::size_t end = std::min(line.find('\t'), line.size());
        const std::string_view part = line.substr(0, end);
        line.remove_prefix(std::min(end + 1, line.size()));
        if (part.starts_with('-'))
            change.remove.push_back(Characters(part.substr(1)));
        else if (part.starts_with('<'))
            change.prepend.push_back(Characters(part.substr(1)));
        else if (part.starts_with('>'))
            change.append.push_back(Characters(part.substr(1)));
    }
    return change;
}

void RequireNone(const std::string& fault)
{
    if (!fault.empty())
        Fail(fault.c_str(), __FILE__, __LINE__);
}

void Run(FuzzInput input)
{
    Options options(input.Line());
    test::AnyEdit edit;
    edit.kind = static_cast<test::AnyEdit::Kind>(options.Number(2));
    const std::optional<Charset> encodings[] = {{}, Charset::Utf8, Charset::Windows1252};
    const std::optional<Charset> encoding = encodings[options.Number(2)];
    edit.name = Characters(input.Line());
    const std::string_view line = input.Line();
    if (edit.kind == test::AnyEdit::Kind::List)
        edit.change = ChangeOf(line);
    else if (edit.kind == test::AnyEdit::Kind::Set)
        edit.value = Characters(line);
    const std::string bytes(input.Rest());
    RequireNone(test::FaultOfDocument(bytes));
    RequireNone(test::FaultOfEdit({bytes, encoding}, edit));
}

} // namespace
} // namespace ov::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    ov::fuzz::Run(ov::fuzz::FuzzInput(data, size));
    return 0;
}
