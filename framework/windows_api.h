#pragma once

// The only file that includes the Windows headers, in the required order.
#include <windows.h>
#include <commctrl.h>
#include <commdlg.h>
