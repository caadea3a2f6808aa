// The routes from a call of the launcher to the dialog, with windows that answer as each test says.
#include "inspect/core/save_preview.h"
#include "launch/core/exit_code.h"
#include "launch/core/launch_session.h"
#include "tests/core/memory_file_port.h"
#include "tests/core/memory_folder_port.h"

#include <gtest/gtest.h>

#include <deque>
#include <map>

namespace ov::test
{
namespace
{

const Text kFile = u"/office/office.cfg";
const Text kBackup = u"/office/office.bak";
const Text kDefaults = u"/office/defaults.cfg";

constexpr std::chrono::year_month_day kToday = std::chrono::year(2026) / 11 / 22;

/// A file that a save does not change except for what the user edits.
const std::string& CompleteFile()
{
    static const std::string bytes = [] {
        InspectionSettings settings;
        settings.today = kToday;
        settings.header.machine = {u"Friday 20 November 2026, 19:12:00", u"J. Reeve", u"CAD-07"};
        std::string content = "# first\n_A = 1\n_ORTHOVAL_CHECK_CELLS = 1\n";
        // The second save removes blanks at the ends of comment lines, which the first one writes.
        for (int save = 0; save < 2; ++save)
            content = PreviewSave(InspectedFile(content, Charset::OfProcess), settings).bytes;
        return content;
    }();
    return bytes;
}

const char* const kFileWithDirective = "# first\n_A = 1\n%include common.cfg\n";

class Memory final : public LaunchMemory
{
  public:
    std::string Load(std::string_view name) override { return files[std::string(name)]; }
    void Store(std::string_view name, const std::string& bytes) override { files[std::string(name)] = bytes; }

    std::map<std::string, std::string> files;
};

constexpr const char* kQuestionNames[] = {"defaults", "new", "backup", "remarks", "no copy"};

class Windows final : public LaunchWindows
{
  public:
    bool AskStart(StartChoice& choice) override
    {
        shown.emplace_back("start");
        offered = choice;
        if (chosen)
            choice = *chosen;
        return chosen.has_value();
    }
    LaunchReply Ask(const LaunchQuestion& question) override
    {
        shown.emplace_back(kQuestionNames[question.index()]);
        if (replies.empty())
            return {};
        const LaunchReply reply = replies.front();
        replies.pop_front();
        return reply;
    }
    void Tell(const LaunchNotice& notice) override
    {
        shown.emplace_back(notice.index() == 0 ? "unusable" : "unresolved");
    }
    int ShowDialog(const Text& defaults, const Text& file) override
    {
        shown.emplace_back("dialog");
        openedDefaults = defaults;
        opened = file;
        if (edit)
            edit();
        return kExitShown;
    }

    std::vector<std::string> shown;
    std::optional<StartChoice> chosen;
    std::deque<LaunchReply> replies;
    std::function<void()> edit;
    StartChoice offered;
    Text opened;
    Text openedDefaults;
};

using Shown = std::vector<std::string>;

class LaunchSessionTest : public testing::Test
{
  protected:
    LaunchSessionTest()
    {
        m_files.directories = {u"/office", u"/office/", u"/copies"};
        m_files.contents[kFile] = CompleteFile();
        m_files.contents[kDefaults] = CompleteFile();
    }

    int Run(const LaunchRequest& request)
    {
        m_windows.shown.clear();
        const int code = RunLaunchSession(request, {{m_files, m_folders}, m_memory, m_windows, [this] {
                                                        return m_now += std::chrono::seconds(1);
                                                    }});
        EXPECT_EQ(0, m_files.openFiles);
        return code;
    }

    // As a user who has answered the question about the defaults file.
    int Open(const std::string& bytes)
    {
        m_files.contents[kFile] = bytes;
        m_memory.files["launcher.txt"] = "defaults = /office/defaults.cfg\n" + m_options;
        return Run({.path = kFile, .defaults = std::nullopt});
    }

    // A save in the dialog.
    void Edit(const std::string& bytes)
    {
        m_windows.edit = [this, bytes] { m_files.contents[kFile] = bytes; };
    }

    std::vector<std::string> Copies() const
    {
        std::vector<std::string> contents;
        for (const auto& [path, content] : m_files.contents) {
            if (path.ends_with(u".copy"))
                contents.push_back(content);
        }
        return contents;
    }

    MemoryFilePort m_files;
    MemoryFolderPort m_folders{m_files};
    Memory m_memory;
    Windows m_windows;
    std::string m_options; ///< further lines of what is remembered
    LocalTime m_now{std::chrono::sys_days(kToday).time_since_epoch()};
};

constexpr LaunchReply kYes{LaunchAnswer::Yes};
constexpr LaunchReply kNo{LaunchAnswer::No};
constexpr LaunchReply kSilenced{LaunchAnswer::Yes, true};

TEST_F(LaunchSessionTest, AsksForWhatIsMissing)
{
    m_windows.chosen = StartChoice{kFile, {}, 10, {}};
    EXPECT_EQ(kExitShown, Run({}));
    EXPECT_EQ((Shown{"start", "dialog"}), m_windows.shown);
    // The defaults file is known now, also if the answer was "none".
    EXPECT_EQ(kExitShown, Run({.path = kFile, .defaults = std::nullopt}));
    EXPECT_EQ((Shown{"dialog"}), m_windows.shown);
    EXPECT_EQ(kFile, m_windows.openedDefaults);
    EXPECT_EQ(kExitShown, Run({.path = kFile, .defaults = std::nullopt, .ask = true}));
    EXPECT_EQ((Shown{"start", "dialog"}), m_windows.shown);
}

TEST_F(LaunchSessionTest, AsksOnceForTheDefaultsFile)
{
    m_windows.chosen = StartChoice{kFile, kDefaults, 10, {}};
    EXPECT_EQ(kExitShown, Run({.path = kFile, .defaults = std::nullopt}));
    EXPECT_EQ((Shown{"start", "dialog"}), m_windows.shown);
    EXPECT_EQ(kFile, m_windows.offered.file);
    EXPECT_EQ(kExitShown, Run({.path = kFile, .defaults = std::nullopt}));
    EXPECT_EQ((Shown{"dialog"}), m_windows.shown);
    EXPECT_EQ(kDefaults, m_windows.openedDefaults);
    EXPECT_EQ(kFile, m_windows.opened);
}

TEST_F(LaunchSessionTest, DefaultsOfTheCallAreNotRemembered)
{
    EXPECT_EQ(kExitShown, Run({.path = kFile, .defaults = kDefaults}));
    EXPECT_EQ((Shown{"dialog"}), m_windows.shown);
    EXPECT_EQ(kDefaults, m_windows.openedDefaults);
    // Not even if the window shows them.
    m_windows.chosen = StartChoice{kFile, kDefaults, 10, {}};
    EXPECT_EQ(kExitShown, Run({.path = kFile, .defaults = kDefaults, .ask = true}));
    EXPECT_EQ((Shown{"start", "dialog"}), m_windows.shown);
    m_windows.chosen.reset();
    EXPECT_EQ(kExitCancelled, Run({.path = kFile, .defaults = std::nullopt}));
    EXPECT_EQ((Shown{"start"}), m_windows.shown);
    EXPECT_EQ(Text(), m_windows.offered.defaults);
}

TEST_F(LaunchSessionTest, OffersWhatWasChosenBefore)
{
    m_windows.chosen = StartChoice{kFile, kDefaults, 3, u"/copies"};
    EXPECT_EQ(kExitShown, Run({}));
    m_windows.chosen.reset();
    EXPECT_EQ(kExitCancelled, Run({}));
    EXPECT_EQ(kFile, m_windows.offered.file);
    EXPECT_EQ(kDefaults, m_windows.offered.defaults);
    EXPECT_EQ(3, m_windows.offered.copies);
    EXPECT_EQ(u"/copies", m_windows.offered.copyFolder);

    EXPECT_EQ(kExitCancelled, Run({.path = {}, .defaults = std::nullopt, .forget = true}));
    EXPECT_EQ(Text(), m_windows.offered.file);
    EXPECT_EQ(Text(), m_windows.offered.defaults);
    EXPECT_EQ(10, m_windows.offered.copies);
    EXPECT_EQ(Text(), m_windows.offered.copyFolder);
}

TEST_F(LaunchSessionTest, ForgetsTheAnswersToo)
{
    m_windows.replies = {kSilenced};
    EXPECT_EQ(kExitShown, Open(kFileWithDirective));
    EXPECT_EQ(kExitShown, Open(kFileWithDirective));
    EXPECT_EQ((Shown{"dialog"}), m_windows.shown);
    EXPECT_EQ(kExitCancelled, Run({.path = kFile, .defaults = kDefaults, .forget = true}));
    EXPECT_EQ((Shown{"remarks"}), m_windows.shown);
}

TEST_F(LaunchSessionTest, ADefaultsFileThatIsGoneIsChosenAgainOrDoneWithout)
{
    m_files.contents.erase(kDefaults);
    EXPECT_EQ(kExitCancelled, Open(CompleteFile()));
    EXPECT_EQ((Shown{"defaults"}), m_windows.shown);

    m_windows.replies = {kNo};
    EXPECT_EQ(kExitShown, Open(CompleteFile()));
    EXPECT_EQ(kFile, m_windows.openedDefaults);
    // It may only be out of reach, so that the next call asks again.
    EXPECT_EQ(kExitCancelled, Run({.path = kFile, .defaults = std::nullopt}));
    EXPECT_EQ((Shown{"defaults"}), m_windows.shown);

    m_files.contents[u"/office/new.cfg"] = CompleteFile();
    m_windows.replies = {kYes};
    m_windows.chosen = StartChoice{kFile, u"/office/new.cfg", 10, {}};
    EXPECT_EQ(kExitShown, Open(CompleteFile()));
    EXPECT_EQ((Shown{"defaults", "start", "dialog"}), m_windows.shown);
    EXPECT_EQ(u"/office/new.cfg", m_windows.openedDefaults);
}

TEST_F(LaunchSessionTest, SaysWhyAPathCannotBeOpened)
{
    EXPECT_EQ(kExitNoFile, Run({.path = u"/office", .defaults = kDefaults}));
    EXPECT_EQ((Shown{"unusable"}), m_windows.shown);
    EXPECT_EQ(kExitNoFile, Run({.path = u"/nowhere/office.cfg", .defaults = kDefaults}));
    EXPECT_EQ((Shown{"unusable"}), m_windows.shown);
    m_files.unreadable.insert(kFile);
    EXPECT_EQ(kExitNoFile, Run({.path = kFile, .defaults = kDefaults}));
    EXPECT_EQ((Shown{"unusable"}), m_windows.shown);
}

TEST_F(LaunchSessionTest, AsksBeforeItOpensANewFile)
{
    const LaunchRequest request{.path = u"/office/new.cfg", .defaults = kDefaults};
    EXPECT_EQ(kExitCancelled, Run(request));
    EXPECT_EQ((Shown{"new"}), m_windows.shown);
    m_windows.replies = {kYes};
    EXPECT_EQ(kExitShown, Run(request));
    EXPECT_EQ((Shown{"new", "dialog"}), m_windows.shown);
    EXPECT_EQ(0U, Copies().size());
}

TEST_F(LaunchSessionTest, CancelLeavesAnInterruptedSaveAlone)
{
    m_files.contents[kBackup] = CompleteFile();
    EXPECT_EQ(kExitCancelled, Open("_A"));
    EXPECT_EQ((Shown{"backup"}), m_windows.shown);
    EXPECT_EQ("_A", m_files.contents[kFile]);
    EXPECT_TRUE(m_files.contents[kBackup] == CompleteFile());
}

TEST_F(LaunchSessionTest, RestoresABackup)
{
    m_files.contents[kBackup] = CompleteFile();
    m_windows.replies = {kYes};
    EXPECT_EQ(kExitShown, Open("_A"));
    EXPECT_EQ((Shown{"backup", "dialog"}), m_windows.shown);
    EXPECT_TRUE(m_files.contents[kFile] == CompleteFile());
    EXPECT_FALSE(m_files.contents.contains(kBackup));
    EXPECT_EQ(std::vector<std::string>{"_A"}, Copies());
}

TEST_F(LaunchSessionTest, KeepsTheFileBesideABackup)
{
    m_files.contents[kBackup] = "_OLD = 1\n";
    m_windows.replies = {kNo};
    EXPECT_EQ(kExitShown, Open(CompleteFile()));
    EXPECT_EQ((Shown{"backup", "dialog"}), m_windows.shown);
    EXPECT_TRUE(m_files.contents[kFile] == CompleteFile());
    EXPECT_FALSE(m_files.contents.contains(kBackup));
    EXPECT_EQ(std::vector<std::string>{"_OLD = 1\n"}, Copies());
}

TEST_F(LaunchSessionTest, OffersTheBackupOfAMissingFile)
{
    m_memory.files["launcher.txt"] = "defaults =\n";
    m_files.contents.erase(kFile);
    m_files.contents[kBackup] = CompleteFile();
    m_windows.replies = {kYes};
    EXPECT_EQ(kExitShown, Run({.path = kFile, .defaults = std::nullopt}));
    EXPECT_EQ((Shown{"backup", "dialog"}), m_windows.shown);
    EXPECT_TRUE(m_files.contents[kFile] == CompleteFile());
}

TEST_F(LaunchSessionTest, DoesNotOpenWhatCouldNotBeResolved)
{
    m_files.contents[kBackup] = CompleteFile();
    m_files.pinned.insert(kBackup);
    m_windows.replies = {kYes};
    EXPECT_EQ(kExitNoFile, Open("_A"));
    EXPECT_EQ((Shown{"backup", "unresolved"}), m_windows.shown);
    EXPECT_EQ("_A", m_files.contents[kFile]);
}

TEST_F(LaunchSessionTest, ShowsWhatSaveTakesAwayOncePerState)
{
    EXPECT_EQ(kExitCancelled, Open(kFileWithDirective));
    EXPECT_EQ((Shown{"remarks"}), m_windows.shown);
    m_windows.replies = {kYes};
    EXPECT_EQ(kExitShown, Open(kFileWithDirective));
    EXPECT_EQ((Shown{"remarks", "dialog"}), m_windows.shown);
    EXPECT_EQ(kExitShown, Open(kFileWithDirective));
    EXPECT_EQ((Shown{"dialog"}), m_windows.shown);
    EXPECT_EQ(kExitCancelled, Open(std::string(kFileWithDirective) + "%undef _A\n"));
    EXPECT_EQ((Shown{"remarks"}), m_windows.shown);
}

TEST_F(LaunchSessionTest, ASilencedFileIsNotShownAgainInAnyState)
{
    m_windows.replies = {kSilenced};
    EXPECT_EQ(kExitShown, Open(kFileWithDirective));
    EXPECT_EQ(kExitShown, Open(std::string(kFileWithDirective) + "%undef _A\n"));
    EXPECT_EQ((Shown{"dialog"}), m_windows.shown);
}

TEST_F(LaunchSessionTest, ShowsAReadOnlyFile)
{
    m_files.readOnly.insert(kFile);
    EXPECT_EQ(kExitCancelled, Open(CompleteFile()));
    EXPECT_EQ((Shown{"remarks"}), m_windows.shown);
}

TEST_F(LaunchSessionTest, KeepsACopyOnlyOfAFileThatChanged)
{
    EXPECT_EQ(kExitShown, Open(CompleteFile()));
    EXPECT_TRUE(Copies().empty());
    Edit("_A = 2\n");
    EXPECT_EQ(kExitShown, Open(CompleteFile()));
    EXPECT_TRUE(Copies() == std::vector<std::string>{CompleteFile()});
}

TEST_F(LaunchSessionTest, KeepsTheNewestCopiesInTheChosenFolder)
{
    m_options = "copies = 2\ncopy-folder = /copies\n";
    Edit("_A = 2\n");
    for (const char* const comment : {"# 1\n", "# 2\n", "# 3\n"}) {
        m_windows.replies = {kYes};
        EXPECT_EQ(kExitShown, Open(CompleteFile() + comment));
    }
    EXPECT_EQ((std::vector<std::string>{CompleteFile() + "# 2\n", CompleteFile() + "# 3\n"}), Copies());
    for (const auto& [path, content] : m_files.contents)
        EXPECT_TRUE(!path.ends_with(u".copy") || path.starts_with(u"/copies/")) << Utf8FromText(path);
}

TEST_F(LaunchSessionTest, KeepsNoCopiesIfTheUserWantsNone)
{
    m_options = "copies = 0\n";
    Edit("_A = 2\n");
    EXPECT_EQ(kExitShown, Open(CompleteFile()));
    EXPECT_TRUE(Copies().empty());
}

TEST_F(LaunchSessionTest, AsksIfNoCopyCanBeMade)
{
    m_options = "copy-folder = /missing\n";
    EXPECT_EQ(kExitCancelled, Open(CompleteFile()));
    EXPECT_EQ((Shown{"no copy"}), m_windows.shown);
    m_windows.replies = {kYes};
    EXPECT_EQ(kExitShown, Open(CompleteFile()));
    EXPECT_EQ((Shown{"no copy", "dialog"}), m_windows.shown);
}

} // namespace
} // namespace ov::test
