#include "controls/core/accessible_names.h"

#include "base/placeholders.h"

namespace ov
{
namespace
{

bool SaysNothing(TextView caption)
{
    return caption.empty() || caption == u"...";
}

} // namespace

Text SpokenCaption(TextView caption)
{
    Text spoken;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        const bool doubled = caption.substr(i).starts_with(u"&&");
        if (caption[i] != u'&' || doubled)
            spoken += caption[i];
        i += doubled ? 1 : 0;
    }
    if (spoken.ends_with(u':'))
        spoken.pop_back();
    return Text(Trim(spoken));
}

std::vector<Text> NamesToGive(std::span<const ControlToName> controls)
{
    std::vector<Text> names;
    Text frame;
    Text input; // The name of the next input, or of the last one if there is none.
    bool labelled = false;
    for (const ControlToName& control : controls) {
        Text name = FillPlaces(control.given, {input});
        bool labels = false;
        switch (control.role) {
        case ControlRole::Label:
            input = SpokenCaption(control.caption);
            labels = true;
            break;
        case ControlRole::Frame:
            input = frame = SpokenCaption(control.caption);
            break;
        case ControlRole::Box:
            input = SaysNothing(control.caption) ? name : SpokenCaption(control.caption);
            break;
        case ControlRole::Radio:
            input = frame.empty() ? SpokenCaption(control.caption) : frame;
            break;
        case ControlRole::Button:
            if (!SaysNothing(control.caption))
                name.clear();
            break;
        case ControlRole::Input:
            if (!name.empty())
                input = name;
            else if (!labelled)
                name = input;
            break;
        case ControlRole::UpDown:
            name = input;
            break;
        }
        labelled = labels;
        names.push_back(std::move(name));
    }
    return names;
}

} // namespace ov
