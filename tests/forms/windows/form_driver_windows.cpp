#include <gtest/gtest.h>
#include <wx/dcmemory.h>
#include <wx/dcscreen.h>
#include <wx/dialog.h>
#include <wx/filename.h>
#include <wx/image.h>
#include <wx/timer.h>
#include <wx/uiaction.h>

#include <string_view>
#include <vector>

#include "platform/windows/system.h"
#include "tests/forms/form_driver.h"
#include "tests/forms/form_system.h"
#include "tests/support/test_paths.h"

namespace lv {

namespace {

constexpr int kMenuMilliseconds = 400;

void KeepPicture(const std::string& name) {
    const std::string folder = TestBinaryDir() + "/screenshots";
    wxFileName::Mkdir(folder, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
    wxScreenDC screen;
    wxBitmap picture(screen.GetSize());
    wxMemoryDC canvas(picture);
    canvas.Blit(wxPoint(), screen.GetSize(), &screen, wxPoint());
    canvas.SelectObject(wxNullBitmap);
    EXPECT_TRUE(picture.ConvertToImage().SaveFile(folder + "/" + name + ".png", wxBITMAP_TYPE_PNG));
}

constexpr wchar_t kDialogClass[] = L"#32770";

// All dialogs are of this class, the toolkit's and the system's own.
BOOL CALLBACK KeepDialog(HWND window, LPARAM list) {
    wchar_t name[16] = {};
    GetClassNameW(window, name, 16);
    if (IsWindowVisible(window) != 0 && std::wstring_view(name) == kDialogClass) {
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    }
    return TRUE;
}

std::vector<HWND> Dialogs() {
    std::vector<HWND> open;
    EnumThreadWindows(GetCurrentThreadId(), KeepDialog, reinterpret_cast<LPARAM>(&open));
    return open;
}

bool InMenu() {
    GUITHREADINFO now{};
    now.cbSize = sizeof now;
    return GetGUIThreadInfo(GetCurrentThreadId(), &now) != 0 && (now.flags & GUI_INMENUMODE) != 0;
}

std::string TitleOf(HWND window) {
    wchar_t title[64] = {};
    GetWindowTextW(window, title, 64);
    return wxString(title).utf8_string();
}

}  // namespace

int OpenModals() {
    return static_cast<int>(Dialogs().size());
}

bool TopModalIsActive() {
    const std::vector<HWND> open = Dialogs();
    return !open.empty() && open.front() == GetForegroundWindow();
}

std::string LeaveOpenOne() {
    if (InMenu()) {
        EndMenu();
        return "a menu";
    }
    for (const HWND window : Dialogs()) {
        if (IsWindowEnabled(window) == 0) {
            continue;  // under another one
        }
        for (wxWindow* known : wxTopLevelWindows) {
            auto* dialog = dynamic_cast<wxDialog*>(known);
            if (dialog != nullptr && dialog->GetHandle() == window && dialog->IsModal()) {
                dialog->EndModal(wxID_CANCEL);
                return known->GetName().utf8_string();
            }
        }
        PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
        return "\"" + TitleOf(window) + "\"";
    }
    return {};
}

// Windows' lists are whole: none has a part of its own that the toolkit would not see.
bool HasKeyboard(wxWindow* control) {
    const wxWindow* focus = wxWindow::FindFocus();
    return focus != nullptr && (focus == control || focus->GetParent() == control);
}

// An open menu keeps all messages to itself: the keys in it have to come from a timer.
void WalkMenu(int key, const std::vector<int>& further, const std::string& picture, const std::vector<int>& last) {
    std::size_t pressed = 0;
    wxTimer timer;
    timer.Bind(wxEVT_TIMER, [&](wxTimerEvent&) {
        wxUIActionSimulator hand;
        if (pressed < further.size()) {
            hand.Char(further[pressed++]);
            timer.StartOnce(kMenuMilliseconds);
            return;
        }
        KeepPicture(picture);
        for (const int next : last) {
            hand.Char(next);
        }
        ++pressed;
    });
    timer.StartOnce(kMenuMilliseconds);
    PressKey(key, wxMOD_ALT);
    EXPECT_TRUE(SettleUntil([&] { return pressed > further.size(); }));
    Settle();
}

void Screenshot(const std::string& name) {
    Settle();
    KeepPicture(name);
}

}  // namespace lv
