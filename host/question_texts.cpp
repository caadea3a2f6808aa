#include "host/question_texts.h"

#include "base/locale_text.h"
#include "host/host_texts.h"
#include "host/loss_texts.h"
#include "resources/ids.h"

#include <string>

namespace
{

ov::Text NumberText(std::uint64_t number)
{
    return FromWide(std::to_wstring(number));
}

ov::Text JudgementText(const ov::FileJudgement& judgement)
{
    switch (judgement.sign) {
    case ov::UnfinishedSign::Empty:
        return HostText(IDS_HOST_UNFINISHED_EMPTY);
    case ov::UnfinishedSign::ZeroBytes:
        return HostText(IDS_HOST_UNFINISHED_ZERO);
    case ov::UnfinishedSign::EndsInLine:
        return HostText(IDS_HOST_UNFINISHED_LINE);
    case ov::UnfinishedSign::EndsInComment:
        return HostText(IDS_HOST_UNFINISHED_COMMENT);
    case ov::UnfinishedSign::LacksVariables:
        return HostText(IDS_HOST_UNFINISHED_LACKS, {NumberText(judgement.lacking)});
    case ov::UnfinishedSign::None:
        break;
    }
    return HostText(judgement.completeness == ov::Completeness::Complete ? IDS_HOST_WHOLE
                                                                         : IDS_HOST_MAYBE_WHOLE);
}

ov::Text RemnantText(const ov::SaveRemnant& remnant)
{
    const ov::Text name = remnant.path.substr(remnant.path.find_last_of(u"\\/") + 1);
    if (!remnant.exists)
        return HostText(IDS_HOST_REMNANT_MISSING, {name});
    return HostText(remnant.readable ? IDS_HOST_REMNANT : IDS_HOST_REMNANT_UNREADABLE,
                    {name, ov::FormatLocalTime(remnant.changed), NumberText(remnant.size),
                     JudgementText(remnant.judgement)});
}

ov::Text CopyText(const ov::CopyResult& result)
{
    switch (result.outcome) {
    case ov::CopyOutcome::FileUnreadable:
        return HostText(IDS_HOST_COPY_FILE_UNREADABLE, {result.systemText});
    case ov::CopyOutcome::FolderUnreadable:
        return HostText(IDS_HOST_COPY_FOLDER_UNREADABLE, {result.systemText});
    case ov::CopyOutcome::NotVerified:
        return HostText(IDS_HOST_COPY_NOT_VERIFIED);
    default:
        return HostText(IDS_HOST_COPY_WRITE_FAILED, {result.systemText});
    }
}

QuestionWords Words(const ov::DefaultsGone& question)
{
    return {.icon = IDI_WARNING,
            .text = HostText(IDS_HOST_ASK_DEFAULTS, {PathText(question.path, question.check)}),
            .answers = {HostText(IDS_HOST_CHOOSE), HostText(IDS_HOST_OPEN_WITHOUT)}};
}

QuestionWords Words(const ov::NewFile& question)
{
    return {.icon = IDI_QUESTION,
            .text = HostText(IDS_HOST_ASK_NEW_FILE, {question.path}),
            .answers = {HostText(IDS_HOST_OPEN)}};
}

QuestionWords Words(const ov::BackupFound& question)
{
    const ov::InterruptedSave& save = question.save;
    QuestionWords words{.icon = IDI_WARNING,
                        .text = HostText(IDS_HOST_ASK_BACKUP,
                                         {save.file.path, RemnantText(save.file), RemnantText(save.backup)}),
                        .answers = {HostText(IDS_HOST_RESTORE)}};
    if (!save.file.exists) {
        words.text += HostText(IDS_HOST_BACKUP_ONLY);
        return words;
    }
    words.answers[1] = HostText(IDS_HOST_KEEP);
    words.text += HostText(save.sameContent ? IDS_HOST_BACKUP_SAME : IDS_HOST_BACKUP_CHOICE);
    return words;
}

QuestionWords Words(const ov::FileRemarks& question)
{
    return {.icon = IDI_WARNING,
            .text = RemarksText(question.path, question.look),
            .answers = {HostText(IDS_HOST_OPEN)},
            .details = DetailsText(question.look),
            .mayBeSilenced = true};
}

QuestionWords Words(const ov::CopyNotMade& question)
{
    return {.icon = IDI_WARNING,
            .text = HostText(IDS_HOST_ASK_NO_COPY, {CopyText(question.result)}),
            .answers = {HostText(IDS_HOST_OPEN_WITHOUT)}};
}

ov::Text ReasonText(const ov::ResolveResult& result)
{
    switch (result.outcome) {
    case ov::ResolveOutcome::NoBackup:
        return HostText(IDS_HOST_RESOLVE_NO_BACKUP);
    case ov::ResolveOutcome::NotKept:
        return CopyText(result.kept);
    case ov::ResolveOutcome::RenameFailed:
        return HostText(IDS_HOST_RESOLVE_RENAME, {result.systemText}) +
               (result.asidePath.empty() ? ov::Text() : HostText(IDS_HOST_RESOLVE_ASIDE, {result.asidePath}));
    default:
        return HostText(IDS_HOST_RESOLVE_REMOVE, {result.systemText});
    }
}

ov::Text NoticeText(const ov::UnusablePath& notice)
{
    return PathText(notice.path, notice.check);
}

ov::Text NoticeText(const ov::BackupUnresolved& notice)
{
    return HostText(IDS_HOST_NOT_RESOLVED, {notice.save.file.path, ReasonText(notice.result)});
}

} // namespace

ov::Text PathText(const ov::Text& path, const ov::PathCheck& check)
{
    switch (check.problem) {
    case ov::PathProblem::NoFolder:
        return HostText(IDS_HOST_PATH_NO_FOLDER, {path});
    case ov::PathProblem::IsFolder:
        return HostText(IDS_HOST_PATH_FOLDER, {path});
    case ov::PathProblem::NotRegular:
        return HostText(IDS_HOST_PATH_NOT_REGULAR, {path});
    case ov::PathProblem::CannotRead:
        return HostText(IDS_HOST_PATH_CANNOT_READ, {path, check.systemText});
    default:
        return HostText(IDS_HOST_PATH_NO_FILE, {path});
    }
}

QuestionWords WordsOf(const ov::LaunchQuestion& question)
{
    return std::visit([](const auto& kind) { return Words(kind); }, question);
}

ov::Text TextOf(const ov::LaunchNotice& notice)
{
    return std::visit([](const auto& kind) { return NoticeText(kind); }, notice);
}
