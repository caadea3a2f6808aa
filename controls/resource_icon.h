#pragma once

#include "framework/windows_api.h"

#include <memory>
#include <type_traits>

struct IconDestroyer {
    void operator()(HICON icon) const { ::DestroyIcon(icon); }
};

/// Owns an icon.
using ResourceIcon = std::unique_ptr<std::remove_pointer_t<HICON>, IconDestroyer>;

/// Loads an icon of the module's resources, `size` pixels wide and high; null on
/// failure.
ResourceIcon LoadResourceIcon(UINT iconId, int size);
