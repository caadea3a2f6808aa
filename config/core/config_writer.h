#pragma once

#include "base/locale_text.h"
#include "base/text.h"
#include "config/core/setting_store.h"

#include <ctime>
#include <string>
#include <vector>

namespace ov
{

/// The facts about the save that the header of a written file contains.
struct HeaderInfo {
    Text date; ///< As returned by FormatSaveDate.
    Text user;
    Text computer;
};

/// The date and time of a save in the current locale, "Friday 20 November 2026, 19:12:00". Empty if it
/// does not fit into 128 characters including the terminator.
Text FormatSaveDate(const std::tm& localTime);

/// The header of a written file. Lines are separated by "\n"; the last one has no line end.
Text MakeHeader(const HeaderInfo& info);

/// The values that the file contains for a variable: that of the line with "=", then those of the lines
/// with ">". A text is quoted, a value of another kind is not. A value with ";" is a list of unquoted items.
/// Empty for a list without items, which is not written at all.
std::vector<Text> WrittenValues(TextView value, int kind);

/// The result of converting a store to the bytes of a file.
struct WriteResult {
    bool ok = true;
    bool inHeader = false; ///< On failure: true if the header contains the character.
    Text variable;         ///< On failure outside the header: the variable whose line or comment contains it.
    Text character;        ///< On failure: the character that the encoding lacks.

    explicit operator bool() const { return ok; }
};

/// Sets `bytes` to the file for the store's current table: the header, then every variable in name
/// order under its comment, or under the default table's comment if its own is empty. Lines end with
/// CR LF. On failure the content of `bytes` is unspecified.
WriteResult WriteConfig(const SettingStore& store, TextView header, std::string& bytes,
                        Charset charset = Charset::OfProcess);

} // namespace ov
