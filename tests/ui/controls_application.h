#pragma once

#include "controls/dialog_app.h"

// This program takes the role of the application for the controls that it tests, with
// only those parts that a test provides.

extern CFont* sharedFont;
extern HICON applicationIcon;
