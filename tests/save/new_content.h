#pragma once

#include "config/core/config_writer.h"
#include "config/core/setting_store.h"
#include "tests/core/test_surroundings.h"

#include <stdexcept>
#include <string>

namespace ov::test
{

/// A store, and the bytes of the file that a save of it writes.
struct NewContent {
    SettingStore store;
    std::string bytes;

    /// The file has a header and, for each setting, a line with a value of that length.
    explicit NewContent(int settings, std::size_t length = 20)
    {
        for (int i = 0; i < settings; ++i) {
            store.SetSetting(u"_SITE_VARIABLE_" + TextFromUtf8(std::to_string(i)), Text(length, u'x'),
                             SettingKindText, u"", kCurrentTable);
        }
        if (!WriteConfig(store, TestSurroundings::Header(), bytes))
            throw std::runtime_error("The content cannot be written");
    }
};

} // namespace ov::test
