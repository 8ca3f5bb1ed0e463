// platform/toolkit/spoken_name.h
//
// What assistive tools call a control that shows no text of its own.

#pragma once

#include <string>

namespace lv {

/// `control` is the toolkit's native handle; `name` is UTF-8. Where the system has no such names nothing happens.
void SetSpokenName(void* control, const std::string& name);

/// The name that assistive tools read now; empty if there is none.
std::string SpokenName(void* control);

}  // namespace lv
