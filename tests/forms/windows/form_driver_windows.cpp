#include <gtest/gtest.h>
#include <wx/dcmemory.h>
#include <wx/dcscreen.h>
#include <wx/filename.h>
#include <wx/image.h>
#include <wx/timer.h>
#include <wx/uiaction.h>

#include "tests/forms/form_driver.h"

namespace lv {

namespace {

constexpr int kMenuMilliseconds = 400;

void KeepPicture(const std::string& name) {
    const std::string folder = LV_TEST_BINARY_DIR "/screenshots";
    wxFileName::Mkdir(folder, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
    wxScreenDC screen;
    wxBitmap picture(screen.GetSize());
    wxMemoryDC canvas(picture);
    canvas.Blit(wxPoint(), screen.GetSize(), &screen, wxPoint());
    canvas.SelectObject(wxNullBitmap);
    EXPECT_TRUE(picture.ConvertToImage().SaveFile(folder + "/" + name + ".png", wxBITMAP_TYPE_PNG));
}

}  // namespace

// Windows' lists are whole: none has a part of its own that the toolkit would not see.
bool HasKeyboard(wxWindow* control) {
    const wxWindow* focus = wxWindow::FindFocus();
    return focus != nullptr && (focus == control || focus->GetParent() == control);
}

// An open menu keeps all messages to itself: what closes it has to come from a timer.
void PassMenu(int key, const std::string& picture) {
    bool seen = false;
    wxTimer timer;
    timer.Bind(wxEVT_TIMER, [&](wxTimerEvent&) {
        seen = true;
        KeepPicture(picture);
        wxUIActionSimulator hand;
        hand.Char(WXK_ESCAPE);
        hand.Char(WXK_ESCAPE);
    });
    timer.StartOnce(kMenuMilliseconds);
    PressKey(key, wxMOD_ALT);
    EXPECT_TRUE(SettleUntil([&] { return seen; }));
    Settle();
}

void Screenshot(const std::string& name) {
    Settle(300);
    KeepPicture(name);
}

}  // namespace lv
