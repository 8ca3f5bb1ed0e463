// platform/linux/toolkit/toolkit_function.h
//
// The toolkit brings GTK and ATK along; their functions are taken from there, so that nothing else links them.

#pragma once

#include <dlfcn.h>

namespace lv {

/// Null where the program runs without the toolkit.
template <class Function>
Function ToolkitFunction(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_DEFAULT, name));
}

}  // namespace lv
