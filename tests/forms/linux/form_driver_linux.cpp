#include <gtest/gtest.h>
#include <wx/dialog.h>
#include <wx/filename.h>

#include <cstdlib>
#include <vector>

#include "platform/linux/toolkit/toolkit_function.h"
#include "tests/forms/form_driver.h"
#include "tests/forms/form_system.h"
#include "tests/support/test_paths.h"

namespace lv {

namespace {

std::vector<wxDialog*> ModalDialogs() {
    std::vector<wxDialog*> open;
    for (wxWindow* window : wxTopLevelWindows) {
        auto* dialog = dynamic_cast<wxDialog*>(window);
        if (dialog != nullptr && dialog->IsModal() && dialog->IsShownOnScreen()) {
            open.push_back(dialog);
        }
    }
    return open;
}

// GList.
struct ListNode {
    void* Data;
    ListNode* Next;
    ListNode* Previous;
};

// GTK's dialogs that the toolkit does not list among its windows: those that choose a file.
std::vector<void*> ChoosersOfGtk() {
    const auto toplevels = ToolkitFunction<ListNode* (*)()>("gtk_window_list_toplevels");
    const auto release = ToolkitFunction<void (*)(ListNode*)>("g_list_free");
    const auto chooser = ToolkitFunction<std::size_t (*)()>("gtk_file_chooser_get_type");
    const auto isA = ToolkitFunction<int (*)(void*, std::size_t)>("g_type_check_instance_is_a");
    const auto isVisible = ToolkitFunction<int (*)(void*)>("gtk_widget_get_visible");
    std::vector<void*> open;
    if (toplevels == nullptr || release == nullptr || chooser == nullptr || isA == nullptr || isVisible == nullptr) {
        ADD_FAILURE() << "this is no GTK";
        return open;
    }
    ListNode* const all = toplevels();
    for (const ListNode* node = all; node != nullptr; node = node->Next) {
        if (isA(node->Data, chooser()) != 0 && isVisible(node->Data) != 0) {
            open.push_back(node->Data);
        }
    }
    release(all);
    return open;
}

}  // namespace

int OpenModals() {
    return static_cast<int>(ModalDialogs().size() + ChoosersOfGtk().size());
}

bool TopModalIsActive() {
    const auto isActive = ToolkitFunction<int (*)(void*)>("gtk_window_is_active");
    if (const std::vector<void*> choosers = ChoosersOfGtk(); !choosers.empty()) {
        return isActive != nullptr && isActive(choosers.back()) != 0;
    }
    const std::vector<wxDialog*> open = ModalDialogs();
    return !open.empty() && isActive != nullptr && isActive(open.back()->GetHandle()) != 0;
}

std::string LeaveOpenOne() {
    if (const std::vector<void*> choosers = ChoosersOfGtk(); !choosers.empty()) {
        ToolkitFunction<void (*)(void*)>("gtk_window_close")(choosers.back());
        return "the choice of a file";
    }
    const std::vector<wxDialog*> open = ModalDialogs();
    if (open.empty()) {
        return {};
    }
    const std::string name = open.back()->GetName().utf8_string();
    open.back()->EndModal(wxID_CANCEL);
    return name;
}

bool HasKeyboard(wxWindow* control) {
    const auto getFocus = ToolkitFunction<void* (*)(void*)>("gtk_window_get_focus");
    const auto isAncestor = ToolkitFunction<int (*)(void*, void*)>("gtk_widget_is_ancestor");
    if (getFocus == nullptr || isAncestor == nullptr) {
        return false;
    }
    void* focus = getFocus(wxGetTopLevelParent(control)->GetHandle());
    return focus != nullptr && (focus == control->GetHandle() || isAncestor(focus, control->GetHandle()) != 0);
}

void WalkMenu(int key, const std::vector<int>& further, const std::string& picture, const std::vector<int>& last) {
    PressKey(key, wxMOD_ALT);
    for (const int next : further) {
        PressKey(next);
    }
    Screenshot(picture);
    for (const int next : last) {
        PressKey(next);
    }
}

// By the screen's own eyes: the toolkit's view of the screen does not change once it was looked at.
void Screenshot(const std::string& name) {
    Settle(300);
    const std::string folder = TestBinaryDir() + "/../screenshots";
    wxFileName::Mkdir(folder, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
    const std::string command = "import -window root '" + folder + "/" + name + ".png'";
    EXPECT_EQ(std::system(command.c_str()), 0) << command;
}

}  // namespace lv
