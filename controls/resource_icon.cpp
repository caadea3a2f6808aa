#include "controls/resource_icon.h"

#include "framework/module_state.h"

ResourceIcon LoadResourceIcon(UINT iconId, int size)
{
    return ResourceIcon(static_cast<HICON>(::LoadImageW(AfxGetResourceHandle(), MAKEINTRESOURCEW(iconId),
                                                        IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
}
