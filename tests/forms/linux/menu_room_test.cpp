// GTK alone keeps a window as wide as its menus.

#include "platform/toolkit/menu_room.h"

#include <gtest/gtest.h>
#include <wx/frame.h>
#include <wx/menu.h>

#include <cstdlib>

#include "tests/forms/form_driver.h"

namespace lv {

namespace {

class ManyMenus : public ::testing::Test {
  protected:
    ManyMenus() {
        auto* bar = new wxMenuBar;
        for (int i = 0; i < 9; ++i) {
            auto* menu = new wxMenu;
            menu->Append(i, "Item");
            bar->Append(menu, wxString::Format("A menu called &%d", i));
        }
        frame->SetMenuBar(bar);
    }
    ~ManyMenus() override {
        frame->Destroy();
        Settle();
    }

    wxFrame* frame = new wxFrame(nullptr, wxID_ANY, "Many menus");
};

}  // namespace

TEST_F(ManyMenus, ScrollInANarrowWindowAndAllOpenByTheirKeys) {
    LetMenusScroll(frame->GetMenuBar()->GetHandle(), 400);
    frame->Show();
    frame->SetClientSize(400, 200);
    EXPECT_TRUE(SettleUntil([this] { return std::abs(frame->GetClientSize().x - 400) <= 2; })) << frame->GetSize().x;
    int chosen = -1;
    frame->Bind(wxEVT_MENU, [&chosen](wxCommandEvent& event) { chosen = event.GetId(); });
    for (const int menu : {0, 8}) {
        frame->Raise();
        Settle(200);
        PressKey('0' + menu, wxMOD_ALT);
        Settle(200);
        PressKey(WXK_RETURN);
        EXPECT_TRUE(SettleUntil([&] { return chosen == menu; })) << chosen;
    }
}

}  // namespace lv
