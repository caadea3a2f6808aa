/// A handle of Windows that is closed at the end of its scope.
#pragma once

#include <windows.h>

struct Handle {
    explicit Handle(HANDLE handle) : value(handle) {}
    ~Handle() { ::CloseHandle(value); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    HANDLE value;
};
