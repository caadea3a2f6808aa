// The File Paths page in the dialog.
#include "pages/files/ids.h"
#include "tests/ui/page_doors.h"

using namespace uidriver;

namespace
{

struct PathField {
    const char* variable;
    int edit;
    int button;
    bool isFile; ///< what the button chooses
};

constexpr PathField fields[] = {
    {"_ORTHOVAL_DICT_DIR", 2401, 2402, false},
    {"_ORTHOVAL_DOCS_DIR", 2403, 2405, false},
    {"_ORTHOVAL_FILEDSN_DIR", 2406, 2408, false},
    {"_ORTHOVAL_REPORT_FILEDSN_DIR", 2432, 2433, false},
    {"_ORTHOVAL_REPORT_TEMPLATE_JET_DSN_XLS", 2435, 2436, false}, // a folder, although the setting is a file
    {"_ORTHOVAL_REPORT_TEMPLATE_ACE_DSN_XLS", 2441, 2442, false}, // likewise
    {"_ORTHOVAL_README_FILE", 2409, 2411, true},
    {"_ORTHOVAL_SCRIPTS", 2412, 2414, false},
    {"_ORTHOVAL_USERS_FILE", 2417, 2419, true},
    {"_ORTHOVAL_REPORT_DISCIPLINES_DIR", 2437, 2439, false},
    {"_ORTHOVAL_HTMLEXPORT_OUTDIR", 2425, 2427, false},
    {"_ORTHOVAL_HTMLEXPORT_EXEFILE", 2428, 2430, true},
};

class FilesPageTest : public PageDoors
{
  protected:
    bool OpenPage() { return Open() && ShowPage(L"File Paths"); }
};

TEST_F(FilesPageTest, EveryButtonOpensItsBrowserAndCancellingChangesNothing)
{
    ASSERT_TRUE(OpenPage());
    for (const PathField& field : fields) {
        SCOPED_TRACE(field.variable);
        ExpectOpens(field.button, field.isFile ? L"Select File" : L"Browse for Folder");
        EXPECT_EQ(L"", PageText(field.edit));
    }
    EXPECT_FALSE(CanSave());
    Cancel();
}

TEST_F(FilesPageTest, OlderDataSourceIsShownInTheJetFieldAndBothLinesAreSaved)
{
    UseCurrent("_ORTHOVAL_REPORT_TEMPLATE_DSN_XLS = \"P:\\Excel.dsn\"\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(L"P:\\Excel.dsn", PageText(IDC_FILES_JET_DSN));
    EXPECT_EQ(L"", PageText(IDC_FILES_ACE_DSN));
    EXPECT_FALSE(CanSave());
    TypeOnPage(IDC_FILES_SCRIPTS, L"P:\\Scripts");
    Save();
    EXPECT_EQ("_ORTHOVAL_REPORT_TEMPLATE_JET_DSN_XLS = P:\\Excel.dsn",
              Saved("_ORTHOVAL_REPORT_TEMPLATE_JET_DSN_XLS"));
    // No page writes this variable: it keeps the quotes of texts that were read.
    EXPECT_EQ("_ORTHOVAL_REPORT_TEMPLATE_DSN_XLS = \"P:\\Excel.dsn\"",
              Saved("_ORTHOVAL_REPORT_TEMPLATE_DSN_XLS"));
}

} // namespace
