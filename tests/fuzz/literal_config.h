#pragma once

#include "base/text.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace ov::fuzz
{

/// A variable as the slow reader keeps it.
struct LiteralRecord {
    Text value;
    Text comment;
    int kind = 0;

    bool operator==(const LiteralRecord&) const = default;
};

using LiteralTable = std::map<Text, LiteralRecord>;

/// Reading and writing of configuration files step by step, with nothing done for speed: what the
/// product's reader and writer are held against.
struct LiteralStore {
    LiteralTable current;
    LiteralTable defaults;
    bool modified = false;

    LiteralTable& Table(int selector) { return selector == 0 ? current : defaults; }

    /// Reads a file into the table; one without lines leaves it as it was.
    void Read(int selector, std::string_view bytes);

    /// The bytes that a save of the current table puts on the disk.
    std::string Write(const Text& header) const;

    /// The comment that is written above a variable of the current table.
    const Text& WrittenComment(const Text& name) const;
};

/// The text without white space at its ends.
Text LiteralTrim(const Text& text);

/// The kind of a value that was read.
int LiteralKind(const Text& value);

/// A value without the quotes that enclose it, and then also without those inside and without what
/// follows a "#".
Text LiteralUnquote(const Text& value);

/// The items that a list is written as: no quotes, no blanks around them, none empty.
std::vector<Text> LiteralItems(const Text& list);

} // namespace ov::fuzz
