#pragma once

#include "base/locale_text.h"
#include "base/text.h"
#include "config/core/setting_store.h"

#include <ctime>
#include <string>
#include <vector>

namespace ov
{

/// What the header of a written file records about the save.
struct HeaderInfo {
    Text date; ///< As FormatSaveDate gives it.
    Text user;
    Text computer;
};

/// The date and time of a save, "Friday 20 November 2026, 19:12:00" in the locale's words; empty
/// when it does not fit into 128 characters with its terminator.
Text FormatSaveDate(const std::tm& localTime);

/// The header of a written file; lines are separated by "\n", the last has no line end.
Text MakeHeader(const HeaderInfo& info);

/// The texts in which a value is written: that of the line with "=", then those of the lines with
/// ">". A text is in quotes, a value of another kind is bare, a value with ";" is a list of bare items.
/// None for a list without items, which is not written at all.
std::vector<Text> WrittenValues(TextView value, int kind);

/// What came of turning a store into the bytes of a file.
struct WriteResult {
    bool ok = true;
    bool inHeader = false; ///< On failure: the header holds the character that cannot be written.
    Text variable;         ///< On failure: else the variable whose line or comment holds it.
    Text character;        ///< On failure: the character itself.

    explicit operator bool() const { return ok; }
};

/// Sets `bytes` to the file for the store's current table: the header, then every variable in name
/// order under its comment, or under the default table's comment when its own is empty. Lines end in
/// CR LF. On failure `bytes` is of no use.
WriteResult WriteConfig(const SettingStore& store, TextView header, std::string& bytes,
                        Charset charset = Charset::OfProcess);

} // namespace ov
