#include "launcher/setups/setup.h"

#include <algorithm>

#include "catalogs/modifications.h"
#include "foundation/field_strings.h"
#include "foundation/settings.h"
#include "launcher/launcher.h"
#include "launcher/menu/window_menu.h"
#include "launcher/setups/row_picks.h"
#include "launcher/window/launch_flow.h"
#include "launcher/window/lv_events.h"
#include "launcher/window/option_rules.h"

namespace lv {

namespace {

// clang-format off
constexpr SetupRow kRows[] = {
    {&Setup::Modification, Option::Game_Chk,   &LV_Frm::Game_Cbo,   PickModification, "modification"},
    {&Setup::Memory,       Option::Memory_Chk, &LV_Frm::Mem_Cbo,    PickMemory,       "memory size"},
    {&Setup::Script,       Option::Script_Chk, &LV_Frm::Script_Cbo, PickScript,       "script"},
    {&Setup::Demo,         Option::Demo_Chk,   &LV_Frm::Demo_Cbo,   PickDemo,         "demo"},
    {&Setup::Server,       Option::Server_Chk, &LV_Frm::Server_Cbo, PickServer,       "server"},
    {&Setup::Map,          Option::Map_Chk,    &LV_Frm::Map_Cbo,    PickMap,          "map"},
};
// clang-format on

constexpr const SetupRow& kModification = kRows[0];

bool SameRow(const SetupRow& row, const std::optional<Text>& a, const std::optional<Text>& b) {
    if (!a || !b) {
        return a.has_value() == b.has_value();
    }
    return row.Box == Option::Server_Chk ? *a == *b : SameText(Trim(*a), Trim(*b));
}

/// One application of a setup.
class Application {
  public:
    Application(Launcher& launcher, const Setup& setup)
        : launcher_(launcher), window_(launcher.Window), setup_(setup), wanted_(setup.Ticked) {}

    std::vector<Text> Apply() {
        if (!PickExecutable(launcher_, setup_.ExecutablePath)) {
            return {Join("The program ", setup_.ExecutablePath, " is not in the list of games any more.")};
        }
        if (!launcher_.run.Ended) {
            PickProfile();
        }
        if (!launcher_.run.Ended) {
            PickRowsAndTick();
        }
        return std::move(gone_);
    }

  private:
    // The live window of the profile may be open; that it shows another one now is not news.
    void PickProfile() {
        if (setup_.VideoProfile.empty()) {
            return;
        }
        const bool quiet = launcher_.ProfileChangeQuiet;
        launcher_.ProfileChangeQuiet = true;
        if (!PickVideoProfile(launcher_, setup_.VideoProfile)) {
            gone_.push_back(Join("The video profile ", setup_.VideoProfile, " is not there any more."));
        }
        launcher_.ProfileChangeQuiet = quiet;
    }

    // The modification decides which scripts and maps there are. GameSpy before it, for each of the two clears the
    // other, and GameSpy would take the modification's scripts away.
    void PickRowsAndTick() {
        Untick();
        PickRow(kModification);
        Tick(Option::LaunchQspy_Chk);
        Tick(Option::Game_Chk);
        for (const SetupRow& row : kRows) {
            if (row.Box != kModification.Box) {
                PickRow(row);
            }
        }
        Untick();  // a list that was filled anew has read its box from the store
        for (const OptionBox& option : OptionBoxes()) {
            if (option.Box != Option::LaunchQspy_Chk && option.Box != Option::Game_Chk) {
                Tick(option.Box);
            }
        }
        KeepWhatExcludesEachOther();
        if (window_.CommandLineAdditions_Txt.Text != setup_.CommandLineAdditions) {
            window_.CommandLineAdditions_Txt.Text = setup_.CommandLineAdditions;
            CommandLineAdditions_Txt_Change(launcher_);
        }
    }

    // A greyed box remembers what is ticked for other games, and one that is not shown is another game's.
    void Untick() {
        for (const OptionBox& option : OptionBoxes()) {
            const CheckBox& box = window_.Box(option.Box);
            if (!wanted_.Has(option.Box) && box.Visible && box.Value == 1) {
                SetOption(launcher_, option.Box, 0);
            }
        }
    }

    void PickRow(const SetupRow& row) {
        const std::optional<Text>& value = setup_.*row.Value;
        if (value && row.Pick(launcher_, *value)) {
            return;
        }
        if (value && wanted_.Has(row.Box)) {
            gone_.push_back(Join("The ", row.What, " ", ShownRow(row, *value), " is not there any more."));
        }
        if (value || (window_.*row.List).HasSelection()) {
            wanted_.Set(row.Box, false);
            Untick();
        }
    }

    void Tick(Option option) {
        if (!wanted_.Has(option) || LacksRow(option)) {
            return;
        }
        const CheckBox& box = window_.Box(option);
        if (!box.Visible || box.Value == 2) {
            wanted_.Set(option, false);
            gone_.push_back(Join("The game has no use any more for: ", ShownBox(option), "."));
            return;
        }
        SetOption(launcher_, option, 1);
    }

    // These two cannot be ticked without a row.
    [[nodiscard]] bool LacksRow(Option option) const {
        return (option == Option::Game_Chk && !window_.Game_Cbo.HasSelection()) ||
               (option == Option::Map_Chk && !window_.Map_Cbo.HasSelection());
    }

    // The window may have come up with boxes ticked that a click would not leave so: it is shown as it was stored, and
    // kept as it was shown.
    void KeepWhatExcludesEachOther() {
        for (const OptionBox& option : OptionBoxes()) {
            CheckBox& box = window_.Box(option.Box);
            if (!wanted_.Has(option.Box) || box.Value == 1 || LacksRow(option.Box)) {
                continue;
            }
            box.Value = 1;
            if (*option.Key != '\0') {
                Save(launcher_.run, kOptions, option.Key, 1);
            }
        }
        ApplyGameSpyRule(window_);
    }

    static Text ShownBox(Option option) {
        const auto* const row = std::ranges::find(kRows, option, &SetupRow::Box);
        return row != std::end(kRows) ? Text(row->What) : Trim(WithoutAccessKeys(OptionBoxOf(option).Caption));
    }

    Launcher& launcher_;
    LV_Frm& window_;
    const Setup& setup_;
    OptionSet wanted_;
    std::vector<Text> gone_;
};

}  // namespace

std::span<const SetupRow> SetupRows() {
    return kRows;
}

Setup SetupOf(const Launcher& launcher) {
    const LV_Frm& window = launcher.Window;
    const LaunchSelection selection = SelectionOf(window);
    Setup setup;
    setup.ExecutablePath = selection.ExecutablePath;
    for (const OptionBox& option : OptionBoxes()) {
        setup.Ticked.Set(option.Box, selection.Ticked.Has(option.Box) && window.Box(option.Box).Visible);
    }
    setup.Modification = selection.Game;
    setup.Memory = selection.Memory;
    setup.Script = selection.Script;
    setup.Demo = selection.Demo;
    setup.Server = selection.Server;
    setup.Map = selection.Map;
    setup.VideoProfile = Trim(window.VideoProfiles_Cbo.Selected());
    setup.CommandLineAdditions = selection.CommandLineAdditions_Txt;
    return setup;
}

bool StartTheSame(const Setup& a, const Setup& b) {
    return SameText(a.ExecutablePath, b.ExecutablePath) && a.Ticked == b.Ticked &&
           SameText(a.VideoProfile, b.VideoProfile) && a.CommandLineAdditions == b.CommandLineAdditions &&
           std::ranges::all_of(kRows, [&](const SetupRow& row) {
               return !a.Ticked.Has(row.Box) || SameRow(row, a.*row.Value, b.*row.Value);
           });
}

Text ShownRow(const SetupRow& row, TextView value) {
    if (row.Box == Option::Game_Chk) {
        return DirectoryOfOption(value);
    }
    if (row.Box == Option::Server_Chk) {
        const Text port = GetField(value, 1, ";");
        return CountDelimiters(value, ";") < 1 ? Text(value) : Join(GetField(value, 0, ";"), ":", port);
    }
    return Text(value);
}

std::vector<Text> ApplySetup(Launcher& launcher, const Setup& setup) {
    return Application(launcher, setup).Apply();
}

}  // namespace lv
