#pragma once

#include "config/core/posix_file_port.h"
#include "config/core/save.h"
#include "tests/core/test_prompts.h"
#include "tests/save/new_content.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <set>
#include <sstream>
#include <string>

namespace ov::test
{

/// A separate folder on the disk, in which files are saved through the POSIX port.
class RealFolder : public testing::Test
{
  protected:
    RealFolder()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "ov-save-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error("No temporary directory");
        folder = pattern;
        // For the user that a test runs as.
        std::filesystem::permissions(folder, std::filesystem::perms{0755});
    }
    ~RealFolder() override { std::filesystem::remove_all(folder); }

    Text Path(const std::string& name) const { return TextFromUtf8((folder / name).string()); }
    void Put(const std::string& name, const std::string& bytes) const
    {
        std::ofstream(folder / name, std::ios::binary) << bytes;
    }
    std::optional<std::string> Get(const std::string& name) const
    {
        std::ifstream file(folder / name, std::ios::binary);
        if (!file)
            return std::nullopt;
        std::ostringstream bytes;
        bytes << file.rdbuf();
        return bytes.str();
    }
    std::set<std::string> Names() const
    {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            names.insert(entry.path().filename().string());
        return names;
    }

    // Saves as after reading the file at the path.
    SaveResult Save(const std::string& name, const NewContent& content, FilePort& port)
    {
        std::optional<KnownFile> known;
        std::error_code error;
        if (std::filesystem::is_regular_file(folder / name, error))
            known = KnownFile{Path(name), Get(name).value_or("")};
        return Save(name, content, port, known);
    }
    SaveResult Save(const std::string& name, const NewContent& content, FilePort& port,
                    std::optional<KnownFile> known)
    {
        TestSurroundings surroundings;
        return SaveConfigFile(content.store, Path(name), known, port, surroundings, prompts);
    }
    SaveResult Save(const std::string& name, const NewContent& content) { return Save(name, content, files); }

    std::filesystem::path folder;
    PosixFilePort files;
    TestPrompts prompts;
};

} // namespace ov::test
