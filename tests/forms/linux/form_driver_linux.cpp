#include <dlfcn.h>
#include <gtest/gtest.h>
#include <wx/filename.h>

#include <cstdlib>

#include "tests/forms/form_driver.h"

namespace lv {

bool HasKeyboard(wxWindow* control) {
    using GetFocus = void* (*)(void*);
    using IsAncestor = int (*)(void*, void*);
    const auto getFocus = reinterpret_cast<GetFocus>(dlsym(RTLD_DEFAULT, "gtk_window_get_focus"));
    const auto isAncestor = reinterpret_cast<IsAncestor>(dlsym(RTLD_DEFAULT, "gtk_widget_is_ancestor"));
    if (getFocus == nullptr || isAncestor == nullptr) {
        return false;
    }
    void* focus = getFocus(wxGetTopLevelParent(control)->GetHandle());
    return focus != nullptr && (focus == control->GetHandle() || isAncestor(focus, control->GetHandle()) != 0);
}

void PassMenu(int key, const std::string& picture) {
    PressKey(key, wxMOD_ALT);
    Screenshot(picture);
    PressKey(WXK_ESCAPE);
    PressKey(WXK_ESCAPE);
}

// By the screen's own eyes: the toolkit's view of the screen does not change once it was looked at.
void Screenshot(const std::string& name) {
    Settle(300);
    const std::string folder = LV_TEST_BINARY_DIR "/../screenshots";
    wxFileName::Mkdir(folder, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
    const std::string command = "import -window root '" + folder + "/" + name + ".png'";
    EXPECT_EQ(std::system(command.c_str()), 0) << command;
}

}  // namespace lv
