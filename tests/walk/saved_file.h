/// What a saved file must hold, and what becomes of it when it is opened and saved again.
#pragma once

#include <optional>
#include <string>

namespace walk
{

/// Empty if the saved file has all variables of the pages, and all others of the file that the dialog
/// has read with their values; otherwise a line for each that it has not. With
/// `mayLackLists`, lists without an entry, which no save writes, were entered on pages.
std::string FaultOfSave(const std::optional<std::string>& read, const std::optional<std::string>& defaults,
                        const std::string& saved, bool mayLackLists);

/// A saved file was opened and saved again without a change. Empty if the second file is the first,
/// but for the date and for texts that no file brings back; otherwise what differs.
std::string FaultOfSecondSave(const std::string& once, const std::optional<std::string>& defaults,
                              const std::string& twice);

} // namespace walk
