// bench/paint_watch.h
//
// Sees when a window that somebody waits for is on the screen: the first idle moment behind its paint event.

#pragma once

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/timer.h>
#include <wx/window.h>

#include <chrono>
#include <functional>
#include <optional>

namespace lv {

class PaintWatch : public wxEventFilter {
  public:
    using Clock = std::chrono::steady_clock;
    using Wanted = std::function<bool(const wxWindow&)>;

    PaintWatch() { wxEvtHandler::AddFilter(this); }
    ~PaintWatch() override { wxEvtHandler::RemoveFilter(this); }
    PaintWatch(const PaintWatch&) = delete;
    PaintWatch& operator=(const PaintWatch&) = delete;

    /// From now on, or from the next event of that type.
    void Start(Wanted wanted, wxEventType type = wxEVT_NULL) {
        wanted_ = std::move(wanted);
        type_ = type;
        from_ = type == wxEVT_NULL ? std::optional(Clock::now()) : std::nullopt;
        painted_ = false;
        milliseconds_.reset();
    }

    /// The time that it took, in milliseconds; nothing while it has not been seen.
    [[nodiscard]] std::optional<double> Seen() const { return milliseconds_; }

    /// Handles events until it is seen; nothing if that takes seconds.
    std::optional<double> Wait() {
        if (!milliseconds_) {
            wxGUIEventLoop loop;
            wxTimer patience;
            patience.Bind(wxEVT_TIMER, [&loop](wxTimerEvent&) { loop.ScheduleExit(); });
            patience.StartOnce(kPatience);
            waiting_ = &loop;
            loop.Run();
            waiting_ = nullptr;
        }
        return milliseconds_;
    }

    int FilterEvent(wxEvent& event) override {
        if (event.GetEventType() == wxEVT_IDLE) {
            if (painted_ && !milliseconds_) {
                milliseconds_ = std::chrono::duration<double, std::milli>(Clock::now() - *from_).count();
                if (waiting_ != nullptr) {
                    waiting_->ScheduleExit();
                }
            }
            return Event_Skip;
        }
        const auto* window = dynamic_cast<wxWindow*>(event.GetEventObject());
        if (!from_ && event.GetEventType() == type_) {
            from_ = Clock::now();
        }
        painted_ = painted_ || (from_ && event.GetEventType() == wxEVT_PAINT && window != nullptr && wanted_(*window));
        return Event_Skip;
    }

  private:
    static constexpr int kPatience = 5000;

    Wanted wanted_;
    wxGUIEventLoop* waiting_ = nullptr;
    wxEventType type_ = wxEVT_NULL;
    std::optional<Clock::time_point> from_;
    bool painted_ = false;
    std::optional<double> milliseconds_;
};

}  // namespace lv
