// The Certifying page in the dialog.
#include "pages/certifying/ids.h"
#include "tests/ui/page_session.h"

using namespace uidriver;

namespace
{

class CertifyingPageTest : public PageSession
{
  protected:
    bool OpenPage() { return Open() && ShowPage(L"Certifying"); }

    /// The index of the checked button in the group for references; -1 for none.
    int References() const
    {
        const int buttons[] = {IDC_CERTIFYING_REFERENCES_NEED_NOT, IDC_CERTIFYING_REFERENCES_MUST,
                               IDC_CERTIFYING_REFERENCES_USER};
        int checked = -1;
        for (int index = 0; index < 3; ++index) {
            if (IsPageChecked(buttons[index]))
                checked = index;
        }
        return checked;
    }
};

TEST_F(CertifyingPageTest, FirstTwoBoxesShowTheMarkerCellAndTheThirdTheReferences)
{
    UseCurrent("_ORTHOVAL_MARKERCELL = 1\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_TRUE(IsPageChecked(IDC_CERTIFYING_PLACE_MARKER_CELL));
    EXPECT_TRUE(IsPageChecked(IDC_CERTIFYING_CHECK_MARKER_CELLS));
    EXPECT_FALSE(IsPageChecked(IDC_CERTIFYING_NO_DIFFERING));
    Cancel();
    UseCurrent("_ORTHOVAL_CERTIFY_CHECK_REFERENCE_MARKERCELLS = 1\r\n"
               "_ORTHOVAL_CERTIFY_NO_DIFFERING_STGS = 1\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_FALSE(IsPageChecked(IDC_CERTIFYING_PLACE_MARKER_CELL));
    EXPECT_FALSE(IsPageChecked(IDC_CERTIFYING_CHECK_MARKER_CELLS));
    EXPECT_TRUE(IsPageChecked(IDC_CERTIFYING_NO_DIFFERING));
    ClickOnPage(IDC_CERTIFYING_NO_DIFFERING);
    Save();
    EXPECT_EQ("_ORTHOVAL_CERTIFY_CHECK_REFERENCE_MARKERCELLS = 0",
              Saved("_ORTHOVAL_CERTIFY_CHECK_REFERENCE_MARKERCELLS"));
    EXPECT_EQ("_ORTHOVAL_CERTIFY_NO_DIFFERING_STGS = 1", Saved("_ORTHOVAL_CERTIFY_NO_DIFFERING_STGS"));
}

TEST_F(CertifyingPageTest, CheckingOnlyTheFirstBoxSavesTheMarkerCellAsOff)
{
    m_currentPath = m_folder / L"new.cfg";
    ASSERT_TRUE(OpenPage());
    ClickOnPage(IDC_CERTIFYING_PLACE_MARKER_CELL);
    EXPECT_TRUE(IsPageChecked(IDC_CERTIFYING_PLACE_MARKER_CELL));
    EXPECT_FALSE(IsPageChecked(IDC_CERTIFYING_CHECK_MARKER_CELLS));
    Save();
    EXPECT_EQ("_ORTHOVAL_MARKERCELL = 0", Saved("_ORTHOVAL_MARKERCELL"));
}

TEST_F(CertifyingPageTest, CheckingOnlyTheSecondBoxSavesTheMarkerCellAsOn)
{
    m_currentPath = m_folder / L"new.cfg";
    ASSERT_TRUE(OpenPage());
    ClickOnPage(IDC_CERTIFYING_CHECK_MARKER_CELLS);
    Save();
    EXPECT_EQ("_ORTHOVAL_MARKERCELL = 1", Saved("_ORTHOVAL_MARKERCELL"));
    EXPECT_EQ("_ORTHOVAL_CERTIFY_CHECK_REFERENCE_MARKERCELLS = 0",
              Saved("_ORTHOVAL_CERTIFY_CHECK_REFERENCE_MARKERCELLS"));
}

// The values are read and shown again; the second check box decides here, too.
TEST_F(CertifyingPageTest, EditorOfTheKeyinsTakesTheFirstBoxBack)
{
    ASSERT_TRUE(OpenPage());
    ClickOnPage(IDC_CERTIFYING_PLACE_MARKER_CELL);
    UseEditor(IDC_CERTIFYING_PRE_KEYIN_BROWSE, IDOK, L"file design");
    EXPECT_EQ(L"file design", PageText(IDC_CERTIFYING_PRE_KEYIN));
    EXPECT_FALSE(IsPageChecked(IDC_CERTIFYING_PLACE_MARKER_CELL));
    Abandon();
}

TEST_F(CertifyingPageTest, AbsentReferencesSelectTheFirstButton)
{
    UseCurrent("_ORTHOVAL_MARKERCELL = 1\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(0, References());
    ClickOnPage(IDC_CERTIFYING_NO_DIFFERING);
    Save();
    EXPECT_EQ("_ORTHOVAL_CERTIFY_CHECK_REFERENCE_WATERMARKS = 0",
              Saved("_ORTHOVAL_CERTIFY_CHECK_REFERENCE_WATERMARKS"));
}

TEST_F(CertifyingPageTest, ReferencesOfMinusOneOrSevenSelectTheThirdButton)
{
    for (const char* stored : {"-1", "7"}) {
        UseCurrent(std::string("_ORTHOVAL_CERTIFY_CHECK_REFERENCE_WATERMARKS = ") + stored + "\r\n");
        ASSERT_TRUE(OpenPage());
        EXPECT_EQ(2, References());
        ClickOnPage(IDC_CERTIFYING_NO_DIFFERING);
        Save();
        EXPECT_EQ("_ORTHOVAL_CERTIFY_CHECK_REFERENCE_WATERMARKS = -1",
                  Saved("_ORTHOVAL_CERTIFY_CHECK_REFERENCE_WATERMARKS"));
    }
}

TEST_F(CertifyingPageTest, RefusalMovesTheFocusForTheSecondKeyinOnly)
{
    ASSERT_TRUE(OpenPage());
    ExpectRefusal(IDC_CERTIFYING_PRE_KEYIN, IDC_CERTIFYING_PRE_KEYIN_BROWSE, IDC_CERTIFYING_PRE_KEYIN_BROWSE);
    ExpectRefusal(IDC_CERTIFYING_POST_KEYIN, IDC_CERTIFYING_POST_KEYIN_BROWSE, IDC_CERTIFYING_POST_KEYIN);
    Abandon();
}

} // namespace
