#pragma once

// Includes the whole framework: a small layer over Win32 with MFC's names and
// semantics, limited to what the program uses.
#include "framework/application.h"
#include "framework/command_target.h"
#include "framework/controls.h"
#include "framework/data_exchange.h"
#include "framework/dc.h"
#include "framework/dialog.h"
#include "framework/exceptions.h"
#include "framework/file_dialog.h"
#include "framework/folder_browser.h"
#include "framework/gdi.h"
#include "framework/geometry.h"
#include "framework/list_control.h"
#include "framework/message_map.h"
#include "framework/modal_doors.h"
#include "framework/module_state.h"
#include "framework/object.h"
#include "framework/wide.h"
#include "framework/window.h"
