#include "host/loss_texts.h"

#include "host/host_texts.h"
#include "inspect/core/rules.h"
#include "resources/ids.h"

#include <string>

namespace
{

constexpr ov::TextView bullet = u"\n  \u2022  ";

// 0 for a rule whose own message says more than a number.
unsigned LossTextId(ov::RuleId rule)
{
    switch (rule) {
    case ov::RuleId::DirectiveLost:
        return IDS_HOST_LOSS_DIRECTIVES;
    case ov::RuleId::LineIgnored:
        return IDS_HOST_LOSS_LINES;
    case ov::RuleId::HeaderReplaced:
        return IDS_HOST_LOSS_HEADER;
    case ov::RuleId::CommentLost:
        return IDS_HOST_LOSS_COMMENTS;
    case ov::RuleId::InheritedList:
        return IDS_HOST_LOSS_INHERITED;
    case ov::RuleId::ValueChanges:
        return IDS_HOST_LOSS_VALUES;
    case ov::RuleId::AssignedAgain:
        return IDS_HOST_LOSS_OVERRIDDEN;
    case ov::RuleId::EntryCut:
        return IDS_HOST_LOSS_ENTRIES;
    case ov::RuleId::MalformedOperator:
        return IDS_HOST_LOSS_OPERATORS;
    case ov::RuleId::HeaderRepeats:
        return IDS_HOST_LOSS_REPEATED;
    case ov::RuleId::ByteOrderMark:
        return IDS_HOST_LOSS_BYTE_ORDER;
    case ov::RuleId::SettingsAdded:
        return IDS_HOST_LOSS_ADDED;
    default:
        return 0;
    }
}

// One finding can report many added settings.
std::size_t NumberOf(const ov::LossCount& loss, const ov::FileLook& look)
{
    std::size_t added = 0;
    for (const ov::Finding& finding : look.findings) {
        if (finding.rule == loss.rule)
            added += finding.added.size();
    }
    return added != 0 ? added : loss.count;
}

ov::Text LossText(const ov::LossCount& loss, const ov::FileLook& look)
{
    const unsigned id = LossTextId(loss.rule);
    if (id == 0)
        return ov::TextFromUtf8(loss.message);
    return HostText(id, {ov::FormatInteger(static_cast<int>(NumberOf(loss, look)))});
}

ov::Text AccessText(const ov::FileLook& look)
{
    switch (look.access) {
    case ov::SaveAccess::NoBackup:
        return HostText(IDS_HOST_REMARK_NO_BACKUP, {look.accessText});
    case ov::SaveAccess::None:
        return HostText(IDS_HOST_REMARK_NO_ACCESS, {look.accessText});
    case ov::SaveAccess::Full:
        break;
    }
    return look.readOnly ? HostText(IDS_HOST_REMARK_READ_ONLY) : ov::Text();
}

} // namespace

ov::Text RemarksText(const ov::Text& path, const ov::FileLook& look)
{
    ov::Text text = HostText(IDS_HOST_ASK_REMARKS, {path});
    if (const ov::Text access = AccessText(look); !access.empty())
        text.append(u"\n\n").append(access);
    if (!look.losses.empty())
        text.append(u"\n\n").append(HostText(IDS_HOST_REMARK_LOSSES));
    for (const ov::LossCount& loss : look.losses)
        text.append(bullet).append(LossText(loss, look));
    return text.append(u"\n\n").append(HostText(IDS_HOST_REMARKS_END));
}

ov::Text DetailsText(const ov::FileLook& look)
{
    ov::Text text;
    for (const char16_t unit : ov::TextFromUtf8(look.difference)) {
        if (unit == u'\n')
            text += u'\r';
        if (unit != u'\r')
            text += unit;
    }
    return text;
}
