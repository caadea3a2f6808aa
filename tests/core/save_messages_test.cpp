#include "pages/core/string_table.h"
#include "wizard/core/save_messages.h"

#include <gtest/gtest.h>

namespace
{
using namespace ov;

Text Load(unsigned id)
{
    return Text(FindString(id));
}

Text Message(const SaveResult& result)
{
    return SaveFailureText(result, &Load);
}
} // namespace

TEST(SaveMessages, ASaveThatSucceededHasNone)
{
    EXPECT_EQ(Message({}), u"");
}

TEST(SaveMessages, NoPathSaysWhereToNameOne)
{
    EXPECT_EQ(Message({.outcome = SaveOutcome::NoPath}),
              u"Error: No configuration file has been defined. Use the '...' button at the top of the dialog "
              u"window "
              u"to define an output file name for the configuration file.");
}

TEST(SaveMessages, AFileThatCannotBeCreatedIsNotTold)
{
    EXPECT_EQ(Message({.outcome = SaveOutcome::CreateFailed}), u"");
    EXPECT_EQ(Message({.outcome = SaveOutcome::CreateFailed, .oldContent = OldContent::Stands}), u"");
}

TEST(SaveMessages, AnOldFileThatDidNotComeBackIsToldWhateverFailed)
{
    const Text message = Message({.outcome = SaveOutcome::CreateFailed,
                                  .oldContent = OldContent::UnderBackupName,
                                  .systemText = u"Access denied.",
                                  .backupPath = u"C:\\office.bak"});
    EXPECT_EQ(message,
              u"The configuration file has not been saved.\nIt could not be created: Access denied.\n\n"
              u"The previous file is kept under this name: C:\\office.bak");
}

TEST(SaveMessages, ACharacterNamesItsVariableAndThatTheOldFileStands)
{
    const Text message = Message({.outcome = SaveOutcome::CharacterRefused,
                                  .oldContent = OldContent::Stands,
                                  .variable = u"_ORTHOVAL_MENU_NAME",
                                  .character = u"\u4E2D"});
    EXPECT_NE(message.find(u"_ORTHOVAL_MENU_NAME contains the character \u4E2D"), Text::npos);
    EXPECT_NE(message.find(u"The file on disk is as it was before."), Text::npos);
}

TEST(SaveMessages, EveryFailedStepHasItsOwnReasonWithTheSystemsWords)
{
    Text previous;
    for (const SaveOutcome outcome :
         {SaveOutcome::WriteFailed, SaveOutcome::FlushFailed, SaveOutcome::CloseFailed}) {
        const Text message =
            Message({.outcome = outcome, .oldContent = OldContent::Stands, .systemText = u"Disk full."});
        EXPECT_NE(message.find(u"Disk full."), Text::npos);
        EXPECT_NE(message, previous);
        previous = message;
    }
}

TEST(SaveMessages, WantOfMemoryIsTheReasonWhereTheSystemHasNoWords)
{
    EXPECT_EQ(Message({.outcome = SaveOutcome::WriteFailed, .oldContent = OldContent::Stands}),
              u"The configuration file has not been saved.\nIt could not be written: There is not enough "
              u"memory.\n\nThe file on disk is as it was before.");
}

TEST(SaveMessages, APlaceThatIsNoFilesSaysToChooseAnother)
{
    for (const SaveOutcome outcome : {SaveOutcome::PathIsDirectory, SaveOutcome::PathIsNoFile}) {
        const Text message = Message({.outcome = outcome});
        EXPECT_TRUE(message.starts_with(u"The configuration file has not been saved.\n"));
        EXPECT_NE(message.find(u"to choose another."), Text::npos);
    }
    EXPECT_NE(Message({.outcome = SaveOutcome::PathIsDirectory}),
              Message({.outcome = SaveOutcome::PathIsNoFile}));
}

TEST(SaveMessages, APercentSignInAPathIsNoPlaceholder)
{
    const Text message = Message({.outcome = SaveOutcome::WriteFailed,
                                  .oldContent = OldContent::UnderBackupName,
                                  .systemText = u"%2 50%",
                                  .backupPath = u"C:\\%1.bak"});
    EXPECT_NE(message.find(u"could not be written: %2 50%\n"), Text::npos);
    EXPECT_NE(message.find(u"C:\\%1.bak"), Text::npos);
}

TEST(SaveMessages, ASaveWithoutABackupGivesTheSystemsWordsALineOfTheirOwn)
{
    EXPECT_EQ(NoBackupText(u"", &Load), u"Cannot rename backup file while saving.");
    EXPECT_EQ(NoBackupText(u"File exists.", &Load), u"Cannot rename backup file while saving.\nFile exists.");
}

TEST(SaveMessages, ADeclinedSaveHasNone)
{
    EXPECT_EQ(Message({.outcome = SaveOutcome::Declined, .oldContent = OldContent::Stands}), u"");
}

TEST(SaveMessages, AFileThatCouldNotBeKeptIsToldWithTheReason)
{
    EXPECT_EQ(
        Message({.outcome = SaveOutcome::KeepFailed,
                 .oldContent = OldContent::Stands,
                 .systemText = u"Sharing violation."}),
        u"The configuration file has not been saved.\nThe file on disk, which it would replace, could not "
        u"be kept under another name: Sharing violation.\n\nThe file on disk is as it was before.");
}

TEST(SaveMessages, TheQuestionSaysWhyAndNamesBothFiles)
{
    EXPECT_EQ(
        ReplaceQuestionText(ReplaceReason::NotRead, u"C:\\%2.cfg", u"C:\\kept.cfg", &Load),
        u"The configuration file on disk has not been read into this dialog:\nC:\\%2.cfg\n\nDo you wish to "
        u"replace it? Its present content will be kept in this file:\nC:\\kept.cfg");
    EXPECT_TRUE(ReplaceQuestionText(ReplaceReason::Changed, u"a", u"b", &Load)
                    .starts_with(u"The configuration file on disk has changed since it was read:\na\n"));
}

TEST(SaveMessages, ContentThatWasKeptWithoutAQuestionIsToldWithItsPlace)
{
    EXPECT_EQ(KeptFileText({}, &Load), u"");
    EXPECT_TRUE(KeptFileText({.keptPath = u"C:\\kept.cfg"}, &Load).ends_with(u":\nC:\\kept.cfg"));
}
