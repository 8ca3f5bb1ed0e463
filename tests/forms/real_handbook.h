// tests/forms/real_handbook.h
//
// The handbook as it lies beside the program, and its window.

#pragma once

#include <wx/html/helpfrm.h>

#include <string>
#include <string_view>

#include "platform/memory/memory_platform.h"
#include "tests/support/test_paths.h"

namespace lv {

/// The program's directory is where the handbook really lies.
struct BookFiles : MemoryFiles {
    std::string ToHost(std::string_view) override { return TestBinaryDir() + "/handbook/handbook.hhp"; }
};

/// Null while it is closed.
inline wxHtmlHelpFrame* Book() {
    return dynamic_cast<wxHtmlHelpFrame*>(wxWindow::FindWindowByName("Handbook_Frm"));
}

}  // namespace lv
