#include "tests/forms/form_driver.h"

#include <gtest/gtest.h>
#include <wx/dialog.h>
#include <wx/evtloop.h>
#include <wx/stopwatch.h>
#include <wx/timer.h>
#include <wx/toplevel.h>
#include <wx/uiaction.h>

#include <memory>
#include <vector>

namespace lv {

namespace {

class PollingTimer : public wxTimer {
  public:
    explicit PollingTimer(std::function<bool()> act) : act_(std::move(act)) { Start(50); }
    void Notify() override {
        if (act_()) {
            Stop();
        }
    }

  private:
    std::function<bool()> act_;
};

int OpenModals() {
    int open = 0;
    for (const wxWindow* window : wxTopLevelWindows) {
        const auto* dialog = dynamic_cast<const wxDialog*>(window);
        open += dialog != nullptr && dialog->IsModal() && dialog->IsShownOnScreen() ? 1 : 0;
    }
    return open;
}

void PressButtonOn(wxWindow* control, int button) {
    const wxRect place = control->GetScreenRect();
    wxUIActionSimulator hand;
    hand.MouseMove(place.GetTopLeft() + wxPoint(place.width / 2, place.height / 2));
    Settle(50);
    hand.MouseClick(button);
    Settle();
}

}  // namespace

wxWindow* Find(const std::string& name) {
    wxWindow* found = wxWindow::FindWindowByName(name);
    EXPECT_NE(found, nullptr) << "no control " << name;
    return found;
}

void Settle(int milliseconds) {
    SettleUntil([] { return false; }, milliseconds);
}

bool SettleUntil(const std::function<bool()>& holds, int milliseconds) {
    const wxStopWatch watch;
    while (watch.Time() < milliseconds) {
        if (holds()) {
            return true;
        }
        wxEventLoopBase* loop = wxEventLoopBase::GetActive();
        loop->YieldFor(wxEVT_CATEGORY_ALL);
        wxMilliSleep(5);
    }
    return holds();
}

void BringForward(wxTopLevelWindow* window) {
    window->Raise();
    EXPECT_TRUE(SettleUntil([window] { return window->IsActive(); })) << window->GetName() << " did not come forward";
    Settle();
}

void ClickOn(wxWindow* control) {
    PressButtonOn(control, wxMOUSE_BTN_LEFT);
}

void RightClickOn(wxWindow* control) {
    PressButtonOn(control, wxMOUSE_BTN_RIGHT);
}

void PressKey(int key, int modifiers) {
    wxUIActionSimulator hand;
    hand.Char(key, modifiers);
    Settle();
}

void WhenModal(const std::function<void()>& act) {
    // Timers live to the end of the program: one may be waiting while another one acts.
    static std::vector<std::unique_ptr<PollingTimer>> timers;
    timers.push_back(std::make_unique<PollingTimer>([act, before = OpenModals(), shown = 0]() mutable {
        shown = OpenModals() > before ? shown + 1 : 0;
        if (shown < 4) {
            return false;
        }
        shown = -1000000;
        act();
        return true;
    }));
}

void DoAndAnswer(const std::function<void()>& open, const std::function<void()>& act) {
    const int before = OpenModals();
    bool acted = false;
    WhenModal([&act, &acted] {
        act();
        acted = true;
    });
    open();
    EXPECT_TRUE(SettleUntil([&] { return acted && OpenModals() <= before; })) << "the window did not come or go";
    Settle();
}

}  // namespace lv
