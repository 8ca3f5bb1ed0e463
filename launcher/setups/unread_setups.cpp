#include "launcher/setups/unread_setups.h"

#include <algorithm>

#include "launcher/setups/setup_text.h"
#include "launcher/setups/setup_words.h"

namespace lv {

namespace {

struct Reason {
    WhyUnread What;
    TextView Why;
    TextView Help;
};

constexpr TextView kBringBack = "What is damaged, an older copy brings back: Tools, Backups.";

// clang-format off
constexpr Reason kReasons[] = {
    {WhyUnread::NoEntry, "no number and no name, as in \"3=Practice\"", kBringBack},
    {WhyUnread::TooMany, "there are 200 setups ahead of it",
     "Delete a setup that you don't use, and the next one is there at the next start."},
    {WhyUnread::NumberTaken, "another setup has this number", kBringBack},
    {WhyUnread::NameTaken, "another setup has this name, and letter case has no meaning in names",
     "Give that other setup a new name (Tools, Setups), and this one is there at the next start."},
    {WhyUnread::NoSetup, "nothing is stored for this number, or what is stored is damaged", kBringBack},
};
// clang-format on

const Reason& ReasonOf(WhyUnread why) {
    const auto* const found = std::ranges::find(kReasons, why, &Reason::What);
    return found != std::end(kReasons) ? *found : kReasons[0];
}

}  // namespace

Text UnreadText(const std::vector<UnreadSetup>& unread) {
    Text text = Join("Some setups can't be read and are left out. They stay among the settings as they are:", NewLine);
    std::vector<TextView> help;  // each once
    for (const UnreadSetup& setup : unread) {
        const Reason& reason = ReasonOf(setup.Why);
        text += Join(NewLine, ShownText(Unescaped(setup.Entry).value_or(setup.Entry)), ": ", reason.Why);
        if (std::ranges::find(help, reason.Help) == help.end()) {
            help.push_back(reason.Help);
        }
    }
    text += NewLine;
    for (const TextView line : help) {
        text += Join(NewLine, line);
    }
    return text;
}

}  // namespace lv
