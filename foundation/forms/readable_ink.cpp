#include "foundation/forms/readable_ink.h"

#include <cmath>

namespace lv {

namespace {

constexpr double kMiddle = 0.5;  // between black and white
constexpr double kFarEnough = 0.4;
constexpr int kAsItIs = 100;
constexpr int kStep = 10;  // towards white at 200, and towards black at 0

}  // namespace

wxColour ReadableInk(const wxColour& ink, const wxColour& ground) {
    const double dark = ground.GetLuminance();
    const int step = dark < kMiddle ? kStep : -kStep;
    wxColour readable = ink;
    for (int lightness = kAsItIs;
         std::abs(readable.GetLuminance() - dark) < kFarEnough && lightness > 0 && lightness < 2 * kAsItIs;) {
        lightness += step;
        readable = ink.ChangeLightness(lightness);
    }
    return readable;
}

}  // namespace lv
