#pragma once

// The one place that pulls in the Windows headers, in the order they want.
#include <windows.h>

#include <commctrl.h>
#include <commdlg.h>
