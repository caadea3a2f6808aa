#pragma once

#include "controls/application.h"

// This program is the application of the controls that it tests, with as much
// of one as a test gives it.

extern CFont* sharedFont;
extern HICON applicationIcon;
