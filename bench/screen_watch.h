// bench/screen_watch.h
//
// What a user sees of a start: when the middle of the screen changes.

#pragma once

#include <unistd.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <memory>
#include <vector>

namespace lv {

class ScreenWatch {
  public:
    using Clock = std::chrono::steady_clock;
    using Pixels = std::vector<std::uint8_t>;

    ScreenWatch() : display_(xcb_connect(nullptr, nullptr), xcb_disconnect) {
        if (xcb_connection_has_error(display_.get()) == 0) {
            screen_ = xcb_setup_roots_iterator(xcb_get_setup(display_.get())).data;
        }
    }

    [[nodiscard]] bool IsOpen() const { return screen_ != nullptr; }

    /// The middle of the screen as it is now: every 2nd line of a square of 60 pixels.
    [[nodiscard]] Pixels Look() const {
        Pixels seen;
        const int left = (screen_->width_in_pixels - kSide) / 2;
        const int top = (screen_->height_in_pixels - kSide) / 2;
        for (int line = 0; line < kSide; line += kStep) {
            asked_.push_back(xcb_get_image(display_.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, screen_->root,
                                           static_cast<std::int16_t>(left), static_cast<std::int16_t>(top + line),
                                           kSide, 1, ~0U));
        }
        for (const xcb_get_image_cookie_t& cookie : asked_) {
            const std::unique_ptr<xcb_get_image_reply_t, decltype(&std::free)> line(
                xcb_get_image_reply(display_.get(), cookie, nullptr), std::free);
            if (line) {
                const std::uint8_t* data = xcb_get_image_data(line.get());
                seen.insert(seen.end(), data, data + xcb_get_image_data_length(line.get()));
            }
        }
        asked_.clear();
        return seen;
    }

    /// The time at which `seen` holds for the screen; the clock's first moment if it does not within 10 seconds.
    [[nodiscard]] Clock::time_point Await(const std::function<bool(const Pixels&)>& seen) const {
        const auto start = Clock::now();
        while (Clock::now() - start < std::chrono::seconds(10)) {
            const Pixels now = Look();
            if (seen(now)) {
                return Clock::now();
            }
            usleep(500);
        }
        return {};
    }

  private:
    static constexpr int kSide = 60;
    static constexpr int kStep = 2;

    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> display_;
    xcb_screen_t* screen_ = nullptr;
    mutable std::vector<xcb_get_image_cookie_t> asked_;
};

}  // namespace lv
