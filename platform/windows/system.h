// platform/windows/system.h
//
// <windows.h> and the shell's calls, without the macros that are names here. Included in their place everywhere.

#pragma once

#include <windows.h>
// Behind windows.h, whose types it needs.
#include <shellapi.h>

#undef RemoveDirectory
