#include "app/preferences_app.h"
#include "include/ovPreferences.h"

#include <optional>

namespace
{
// An argument of a call: nothing for null.
using Argument = std::optional<ov::Text>;

Argument TextOf(const wchar_t* text)
{
    return text != nullptr ? Argument(FromWide(text)) : std::nullopt;
}

/// Runs the body of an export. A C++ exception must not unwind into a host, which may
/// be built by another compiler, so everything that can throw runs in here.
template <class Work>
unsigned int Guarded(Work work)
{
    try {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        if (!AfxModuleReady())
            return OV_PREFERENCES_NOT_SHOWN;
        try {
            return work();
        } catch (...) {
            AfxReportCurrentException();
        }
    } catch (...) {
        // Even the module's state could not be initialised, so there is no way to show
        // a message.
    }
    return OV_PREFERENCES_NOT_SHOWN;
}
} // namespace

extern "C" unsigned int ovPreferences_showDialog(void)
{
    return Guarded([] { return theApp.ShowPreferences(nullptr); });
}

extern "C" unsigned int ovPreferences_showDialogEx(CWnd* parent, const wchar_t* defaultPath,
                                                   const wchar_t* currentPath, const wchar_t* userName)
{
    return Guarded([=] {
        if (theApp.ActivateOpenDialog())
            return OV_PREFERENCES_NOT_SHOWN;
        Argument texts[] = {TextOf(defaultPath), TextOf(currentPath), TextOf(userName)};
        ov::Text* const targets[] = {&theCommandLine.m_defaultPath, &theCommandLine.m_currentPath,
                                     &theCommandLine.m_userName};
        for (size_t i = 0; i < std::size(texts); ++i) {
            if (texts[i])
                targets[i]->swap(*texts[i]);
        }
        return theApp.ShowPreferences(CWnd::FromForeign(parent));
    });
}
