// A save whose connection to the file's folder is lost with the answer to the rename, and returns when the
// new file is to be created.
#include "config/core/save.h"
#include "tests/core/forwarding_port.h"
#include "tests/core/memory_file_port.h"
#include "tests/core/scoped_locale.h"
#include "tests/core/test_prompts.h"
#include "tests/core/test_surroundings.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <utility>

namespace ov
{
namespace
{

class InterruptedPort final : public test::ForwardingPort
{
  public:
    using ForwardingPort::ForwardingPort;

    FileResult Rename(const Text& from, const Text& to) override
    {
        const FileResult result = ForwardingPort::Rename(from, to);
        m_interrupted = !std::exchange(m_renamed, true);
        return m_interrupted ? Fault() : result;
    }
    FileKind Kind(const Text& path) override
    {
        return m_interrupted ? FileKind::Unknown : ForwardingPort::Kind(path);
    }
    FileResult OpenForReading(const Text& path, FileHandle& file) override
    {
        return m_interrupted ? Fault() : ForwardingPort::OpenForReading(path, file);
    }
    FileResult Create(const Text&, CreateMode, FileHandle&) override
    {
        m_interrupted = false;
        return Fault();
    }

  private:
    static FileResult Fault() { return {false, Text(test::kFaultText)}; }

    bool m_renamed = false;
    bool m_interrupted = false;
};

TEST(LostRename, IsUndoneWhenTheOldContentIsFoundAfterTheFailure)
{
    const test::ScopedLocale locale("C");
    const Text path = u"dir/office.cfg";
    const std::string old = "OLD = content\r\n";
    test::MemoryFilePort files;
    files.contents[path] = old;
    InterruptedPort port(files);
    SettingStore store;
    test::TestSurroundings surroundings;
    test::TestPrompts prompts;
    std::optional known = KnownFile{path, old};
    const SaveResult result = SaveConfigFile(store, path, known, port, surroundings, prompts);
    EXPECT_EQ(result.outcome, SaveOutcome::CreateFailed);
    EXPECT_EQ(result.oldContent, OldContent::Stands);
    EXPECT_EQ(files.contents, (std::map<Text, std::string>{{path, old}}));
}

} // namespace
} // namespace ov
