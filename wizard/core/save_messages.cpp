#include "wizard/core/save_messages.h"

#include "base/placeholders.h"
#include "resources/ids.h"

namespace ov
{
namespace
{

unsigned ReasonId(SaveOutcome outcome)
{
    switch (outcome) {
    case SaveOutcome::PathIsDirectory:
        return IDS_SAVE_PLACE_TAKEN_BY_FOLDER;
    case SaveOutcome::PathIsNoFile:
        return IDS_SAVE_PLACE_IS_NO_FILE;
    case SaveOutcome::KeepFailed:
        return IDS_SAVE_KEEP_FAILED;
    case SaveOutcome::CreateFailed:
        return IDS_SAVE_CREATE_FAILED;
    case SaveOutcome::WriteFailed:
        return IDS_SAVE_WRITE_FAILED;
    case SaveOutcome::FlushFailed:
        return IDS_SAVE_FLUSH_FAILED;
    case SaveOutcome::CloseFailed:
        return IDS_SAVE_CLOSE_FAILED;
    default:
        return 0;
    }
}

Text Reason(const SaveResult& result, const StringLoader& load)
{
    if (result.outcome == SaveOutcome::CharacterRefused) {
        return FillPlaces(
            load(result.inHeader ? IDS_SAVE_CHARACTER_IN_HEADER : IDS_SAVE_CHARACTER_IN_VARIABLE),
            {result.variable, result.character});
    }
    const Text systemText = result.systemText.empty() ? load(IDS_SAVE_OUT_OF_MEMORY) : result.systemText;
    return FillPlaces(load(ReasonId(result.outcome)), {systemText});
}

Text OldContentText(const SaveResult& result, const StringLoader& load)
{
    switch (result.oldContent) {
    case OldContent::NoneBefore:
        return load(IDS_SAVE_OLD_NONE);
    case OldContent::Stands:
        return load(IDS_SAVE_OLD_STANDS);
    case OldContent::UnderBackupName:
        return FillPlaces(load(IDS_SAVE_OLD_UNDER_BACKUP_NAME), {result.backupPath});
    case OldContent::Lost:
        break;
    }
    return load(IDS_SAVE_OLD_LOST);
}

bool OldContentIsInPlace(OldContent oldContent)
{
    return oldContent == OldContent::NoneBefore || oldContent == OldContent::Stands;
}

} // namespace

Text SaveFailureText(const SaveResult& result, const StringLoader& load)
{
    switch (result.outcome) {
    case SaveOutcome::Saved:
    case SaveOutcome::Declined:
        return {};
    case SaveOutcome::NoPath:
        return load(IDS_NO_CONFIG_FILE);
    case SaveOutcome::PathIsDirectory:
    case SaveOutcome::PathIsNoFile:
        return Reason(result, load);
    case SaveOutcome::CreateFailed:
        if (OldContentIsInPlace(result.oldContent))
            return {};
        break;
    default:
        break;
    }
    return Reason(result, load) + u"\n\n" + OldContentText(result, load);
}

Text KeptFileText(const SaveResult& result, const StringLoader& load)
{
    return result.keptPath.empty() ? Text() : FillPlaces(load(IDS_SAVE_KEPT_FILE), {result.keptPath});
}

Text ReplaceQuestionText(ReplaceReason reason, TextView path, TextView keptPath, const StringLoader& load)
{
    const unsigned id =
        reason == ReplaceReason::NotRead ? IDS_ASK_REPLACE_UNREAD_FILE : IDS_ASK_REPLACE_CHANGED_FILE;
    return FillPlaces(load(id), {path, keptPath});
}

Text NoBackupText(TextView systemText, const StringLoader& load)
{
    Text message = load(IDS_CANNOT_RENAME_BACKUP);
    if (!systemText.empty())
        message.append(u"\n").append(systemText);
    return message;
}

} // namespace ov
