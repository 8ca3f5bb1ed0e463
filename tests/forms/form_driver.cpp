#include "tests/forms/form_driver.h"

#include <gtest/gtest.h>
#include <wx/evtloop.h>
#include <wx/stopwatch.h>
#include <wx/timer.h>
#include <wx/toplevel.h>
#include <wx/uiaction.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "tests/forms/form_system.h"
#include "tests/forms/patience.h"

namespace lv {

namespace {

constexpr int kBetweenKeys = 20;
constexpr int kBetweenTurns = 5;  // milliseconds
constexpr int kLeastTurns = 8;    // however long each of them takes on a busy machine
constexpr int kSeenUp = 4;        // looks of a PollingTimer at an open window before hands are laid on it
constexpr int kSeenLong = 60;     // looks after which it will not become active any more

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

// Those that wait live to the end of the test: one may be waiting while another one acts.
std::vector<std::unique_ptr<PollingTimer>>& Waiting() {
    static std::vector<std::unique_ptr<PollingTimer>> timers;
    return timers;
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
    const int turns = std::min(kLeastTurns, milliseconds / kBetweenTurns);
    for (int turn = 0; turn < turns || watch.Time() < milliseconds; ++turn) {
        SignOfLife();
        if (holds()) {
            return true;
        }
        wxEventLoopBase* loop = wxEventLoopBase::GetActive();
        loop->YieldFor(wxEVT_CATEGORY_ALL);
        wxMilliSleep(kBetweenTurns);
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

void TypeText(const std::string& text) {
    wxUIActionSimulator hand;
    for (const char c : text) {
        hand.Char(c, c == ':' ? wxMOD_SHIFT : wxMOD_NONE);
        Settle(kBetweenKeys);
    }
    Settle();
}

void WhenModal(const std::function<void()>& act) {
    Waiting().push_back(std::make_unique<PollingTimer>([act, before = OpenModals(), shown = 0]() mutable {
        shown = OpenModals() > before ? shown + 1 : 0;
        if (shown < kSeenUp || (shown < kSeenLong && !TopModalIsActive())) {
            return false;
        }
        shown = -1000000;
        act();
        return true;
    }));
}

int ForgetModals() {
    const auto waiting = std::ranges::count_if(Waiting(), [](const auto& timer) { return timer->IsRunning(); });
    Waiting().clear();
    return static_cast<int>(waiting);
}

void PassMenu(int key, const std::string& picture) {
    WalkMenu(key, {}, picture, {WXK_ESCAPE, WXK_ESCAPE});
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
