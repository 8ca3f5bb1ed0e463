// platform/windows/task_bar.h
//
// The task bar, which puts the windows of one program under one icon.

#pragma once

namespace lv {

/// What the program is called there. The installer's shortcut bears the same name, so that a window comes up under the
/// icon that the user has pinned.
constexpr const wchar_t* kTaskBarName = L"Lorvane.Lorvane3D";

/// To be called before the first window. False if the system knows no such names.
bool TakeTaskBarName();

}  // namespace lv
