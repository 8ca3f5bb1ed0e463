#include "video/overclock.h"

#include <algorithm>

#include "foundation/question_box.h"
#include "games/games.h"

namespace lv {

namespace {

struct ClockWarning {
    TextView Stem;
    Index First;  // MHz, from which on the first box comes
    TextView FirstText;
    TextView Ruin;
    Index Second;  // MHz, from which on the second comes too
    TextView SecondText;
};

constexpr ClockWarning kWarnings[] = {
    {"SST_GRXCLK", 51, "Setting this value over 50 is considered 'overclocking' the chipset.",
     "YOU MAY BE ABOUT TO RUIN YOUR VIDEO CARD.", 60,
     "To set the clockspeed to 60 or over, please acknowledge that you"},
    {"SSTV2_GRXCLK", 91, "Setting this value over 90 is considered 'overclocking' the chipset.",
     "YOU MAY BE ABOUT TO RUIN YOUR 3D VIDEO CARD.", 95,
     "To set the clockspeed to 95 or over, please acknowledge that you"},
};

constexpr Index kGoOn = 0;

bool ConfirmsDanger(Run& run, const ClockWarning& warning) {
    const Text text = Join(
        warning.FirstText, NewLine,
        Join("To do this, you should be a GL", FactsOf(run.GameKind).Name, " and 3DFX GOD. This is because", NewLine),
        "only such a GOD will not care when he blows out his card.", NewLine, warning.Ruin);
    return AskUser(run, "DANGER WILL ROBINSON", text,
                   "&Of Course I Am a GLQuake GOD,&I'm smart enough to admit I don't know what I am doing") == kGoOn;
}

bool ConfirmsFire(Run& run, const ClockWarning& warning) {
    return AskUser(run, "FIRE IN THE HOLE!!",
                   Join(warning.SecondText, NewLine, "really really really know what you are doing."),
                   "&I Know All,&I'm smart enough to admit I don't know what I am doing") == kGoOn;
}

}  // namespace

bool MayOverclock(Run& run, const ProfileTunable& tunable, Index megahertz) {
    const auto* const warning = std::ranges::find(kWarnings, tunable.Stem, &ClockWarning::Stem);
    if (warning == std::end(kWarnings) || megahertz < warning->First) {
        return true;
    }
    return ConfirmsDanger(run, *warning) && (megahertz < warning->Second || ConfirmsFire(run, *warning));
}

}  // namespace lv
