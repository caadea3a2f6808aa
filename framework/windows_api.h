#pragma once

// The one place that pulls in the Windows headers, in the order they want.
#include <windows.h>
#include <windowsx.h>

#include <commctrl.h>
#include <commdlg.h>

// windowsx.h names macros after our functions; the functions are meant.
#undef SubclassWindow
#undef GetNextSibling
#undef GetWindowFont
