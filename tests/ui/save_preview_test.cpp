// Compares the file that ovprefs previews with the one that the dialog saves: for the
// samples, and for random files with and without defaults. OV_PREVIEW_FILES requests
// more of them, OV_PREVIEW_SEED other ones.
#include "config/core/config_reader.h"
#include "framework/wide.h"
#include "inspect/core/save_preview.h"
#include "pages/branding/ids.h"
#include "pages/core/page_rows.h"
#include "pages/scan_period/rows.h"
#include "tests/data/test_data.h"
#include "tests/pages/random_file.h"
#include "tests/ui/dialog_session.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

using namespace uidriver;

namespace
{

int FromEnvironment(const char* name, int otherwise)
{
    const char* value = std::getenv(name);
    return value != nullptr ? std::atoi(value) : otherwise;
}

ov::Charset CharsetOf(const std::string& bytes)
{
    return ov::DetectCharset(bytes);
}

std::chrono::year_month_day Today()
{
    using namespace std::chrono;
    SYSTEMTIME now = {};
    GetLocalTime(&now);
    return {year(now.wYear), month(now.wMonth), day(now.wDay)};
}

/// Whether the dialog reports a date of the scan period when its page loads the table.
bool ReportsDate(const ov::SettingStore& store, ov::TableSelector table)
{
    ov::PageValues page(ov::kScanPeriodRows);
    try {
        page.Load(store, table);
    } catch (const ov::ImpossibleDate&) {
        return true;
    }
    return false;
}

/// The number of message boxes that the dialog shows while it opens the files.
int MessagesOnOpening(const std::string& current, const std::optional<std::string>& defaults)
{
    ov::SettingStore store;
    int messages = 0;
    if (defaults) {
        ov::ReadConfig(store, ov::kDefaultTable, *defaults, CharsetOf(*defaults));
        messages += ReportsDate(store, ov::kDefaultTable) ? 1 : 0;
    }
    ov::ReadConfig(store, ov::kCurrentTable, current, CharsetOf(current));
    return messages + (ReportsDate(store, ov::kCurrentTable) ? 1 : 0);
}

class SavePreviewTest : public DialogSession
{
  protected:
    /// The file after the dialog was opened on it, one change was made and undone, and Save was pressed.
    std::string SavedByDialog(const std::string& current, const std::optional<std::string>& defaults)
    {
        UseCurrent(current);
        m_defaultPath.clear();
        if (defaults)
            UseDefaults(*defaults);
        Begin();
        for (int messages = MessagesOnOpening(current, defaults); messages > 0; --messages)
            Answer(AwaitBox(), IDOK);
        if (AwaitDialog() == nullptr)
            return {};
        ClickOnPage(IDC_BRANDING_AUTO);
        ClickOnPage(IDC_BRANDING_AUTO);
        Save();
        return CurrentBytes();
    }

    /// Expects the preview to equal the saved file byte for byte, with the dialog's header texts.
    void ExpectEqual(const std::string& current, const std::optional<std::string>& defaults)
    {
        const std::string saved = SavedByDialog(current, defaults);
        const auto header = ov::InspectedFile(saved, CharsetOf(saved)).SavedHeader();
        ASSERT_TRUE(header);
        EXPECT_EQ(header->user, FromWide(m_user));
        ov::InspectionSettings settings;
        settings.today = Today();
        settings.header = {{}, header->date, header->user, header->computer};
        if (defaults)
            settings.defaults = ov::FileBytesView{*defaults, CharsetOf(*defaults)};
        const ov::InspectedFile file(current, CharsetOf(current));
        const ov::SavePreview preview = ov::PreviewSave(file, settings);
        EXPECT_TRUE(preview.result);
        if (preview.bytes == saved)
            return;
        const auto [found, wanted] = std::ranges::mismatch(preview.bytes, saved);
        const auto at = static_cast<std::size_t>(wanted - saved.begin());
        const std::size_t from = at > 200 ? at - 200 : 0;
        ADD_FAILURE() << "differs at byte " << at
                      << "\nsaved:   " << testing::PrintToString(saved.substr(from, 400))
                      << "\npreview: " << testing::PrintToString(preview.bytes.substr(from, 400));
        Keep("current", current);
        Keep("defaults", defaults.value_or(""));
        Keep("saved", saved);
        Keep("preview", preview.bytes);
    }

  private:
    /// Keeps the file for examining a failure.
    static void Keep(const std::string& name, const std::string& bytes)
    {
        const char* folder = std::getenv("OV_PREVIEW_KEEP");
        if (folder != nullptr)
            std::ofstream(std::string(folder) + "/" + name + ".cfg", std::ios::binary) << bytes;
    }
};

std::string Sample(const char* name)
{
    std::ifstream stream(ov::test::TestData(std::string("samples/") + name), std::ios::binary);
    std::ostringstream bytes;
    bytes << stream.rdbuf();
    EXPECT_FALSE(bytes.str().empty()) << name;
    return bytes.str();
}

TEST_F(SavePreviewTest, OfTheSamplesIsWhatTheDialogSaves)
{
    const std::string office = Sample("office.cfg");
    const std::string standard = Sample("defaults.cfg");
    ExpectEqual(office, std::nullopt);
    ExpectEqual(office, standard);
    ExpectEqual(standard, std::nullopt);
}

TEST_F(SavePreviewTest, OfRandomFilesIsWhatTheDialogSaves)
{
    const int files = FromEnvironment("OV_PREVIEW_FILES", 3);
    const int seed = FromEnvironment("OV_PREVIEW_SEED", 1);
    for (int number = 0; number < files && !HasFailure(); ++number) {
        std::mt19937 random(static_cast<unsigned>(seed + number));
        SCOPED_TRACE(testing::Message() << "OV_PREVIEW_SEED=" << seed + number);
        std::optional<std::string> defaults;
        if (number % 2 == 1)
            defaults = expected::RandomFile(random);
        ExpectEqual(expected::RandomFile(random), defaults);
    }
    std::printf("%d files compared\n", files);
}

} // namespace
