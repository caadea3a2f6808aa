#pragma once

#include "framework/afxwin.h"

/// Sent from a page to the dialog. WPARAM is the page's window, LPARAM its new
/// modified state (non-zero = modified). The dialog returns 1.
constexpr UINT WM_PAGE_MODIFIED = WM_USER + 500;
