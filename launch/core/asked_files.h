#pragma once

#include "base/text.h"
#include "launch/core/file_look.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ov
{

/// The files about which the user has been asked before opening. Their names are those of PathKey.
class AskedFiles
{
  public:
    /// The most files that are remembered; those that were not asked about for the longest time are
    /// forgotten.
    static constexpr std::size_t kMostFiles = 200;

    /// Reads what Format has written. Damaged lines are ignored.
    static AskedFiles Parse(std::string_view text);

    /// One line of UTF-8 for each file, with LF: its state, after "never " if the user does not want to be
    /// asked, a tab, its name. The file that was asked about last is the first.
    std::string Format() const;

    /// True if the user should see the remarks of a look at this file: they exist, were not shown for the
    /// same state, and are wanted. A left-over backup is shown even if the user does not want to be asked
    /// about the file, because the next save deletes it.
    bool ShouldAsk(const Text& key, const FileLook& look) const;

    /// Remembers that the user was asked about this state.
    void Remember(const Text& key, const Text& state);

    /// The user does not want to be asked about this file again. `state` is the present one.
    void NeverAsk(const Text& key, const Text& state);

    /// Forgets the file, so that the user is asked again.
    void Forget(const Text& key);

  private:
    struct AskedFile {
        Text key;
        Text state;
        bool never;
    };

    const AskedFile* Find(const Text& key) const;
    void Put(AskedFile file);

    std::vector<AskedFile> m_files;
};

} // namespace ov
