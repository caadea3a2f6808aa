#pragma once

#include "base/text.h"
#include "config/core/setting_store.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace ov::fuzz
{

/// A variable in the simple reader.
struct LiteralRecord {
    Text value;
    Text comment;
    int kind = 0;

    bool operator==(const LiteralRecord&) const = default;
};

using LiteralTable = std::map<Text, LiteralRecord>;

/// Reads and writes configuration files without any optimisation, for comparison with the product's
/// reader and writer.
struct LiteralStore {
    LiteralTable current;
    LiteralTable defaults;
    bool modified = false;

    LiteralTable& Table(TableSelector selector) { return selector == kCurrentTable ? current : defaults; }

    /// Reads a file into the table; a file without lines does not change it.
    void Read(TableSelector selector, std::string_view bytes);

    /// The bytes that a save of the current table writes.
    std::string Write(const Text& header) const;

    /// The comment that is written above a variable of the current table.
    const Text& WrittenComment(const Text& name) const;
};

/// The text without leading and trailing white space.
Text LiteralTrim(const Text& text);

/// The kind of a value that was read.
int LiteralKind(const Text& value);

/// A value without the quotes that enclose it; if there are such quotes, also without those inside and
/// without the part from "#" on.
Text LiteralUnquote(const Text& value);

/// The items of a list as written: no quotes, no blanks around them, none empty.
std::vector<Text> LiteralItems(const Text& list);

} // namespace ov::fuzz
