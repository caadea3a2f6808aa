#pragma once

#include "framework/afxwin.h"

/// Page to dialog, sent: WPARAM is the page's window, LPARAM its new modified
/// state (non-zero = modified). The dialog answers 1.
constexpr UINT WM_PAGE_MODIFIED = WM_USER + 500;
