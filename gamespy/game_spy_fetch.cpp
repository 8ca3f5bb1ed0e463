#include "gamespy/game_spy_fetch.h"

#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "gamespy/server_text.h"
#include "gamespy/window_search.h"

namespace lv {

namespace {

constexpr TextView kNoData = "No data was retrieved from GameSpy";

Text Refuse(Run& run, TextView text) {
    if (!run.Ended) {
        AskUser(run, "Error Getting GameSpy Data", text);
    }
    return {};
}

/// The menu that holds the copy command, by the version in the title.
TextView MenuKeys(TextView title) {
    return !Holds(title, "2.") && Holds(title, "1.") ? "%e" : "%s";
}

/// What GameSpy copied; nothing if no keys could be pressed.
Result<Text> PressCopy(Run& run, Desktop& desktop, TextView title) {
    Error failed = desktop.SendKeys(MenuKeys(title));
    if (!failed) {
        failed = desktop.SendKeys("c");
    }
    PauseSeconds(run, 1);
    if (failed) {
        return failed;
    }
    return run.System.Clip.GetText();
}

Text AddressIn(Run& run, TextView copied) {
    const AssembledAddress assembled = AssembleAddress(copied);
    return assembled.Fault != nullptr ? Refuse(run, assembled.Fault) : assembled.Address;
}

}  // namespace

Text GameSpyFetch(Run& run, bool raw) {
    Desktop* const desktop = run.System.Windows;
    const WindowHandle GameSpyHwnd = FindGameSpyWindow(desktop);
    if (GameSpyHwnd == 0) {
        AskUser(run, "Error Looking for GameSpy 3D", "GameSpy 3D was not found.");
        return {};
    }
    const Text title = desktop->WindowTitle(GameSpyHwnd);
    const bool iconic = desktop->IsIconic(GameSpyHwnd);
    if (iconic) {
        desktop->OpenIcon(GameSpyHwnd);
    }
    const bool inFront = desktop->SetForegroundWindow(GameSpyHwnd);
    PauseSeconds(run, 1);
    if (run.Ended) {
        return {};
    }
    if (!inFront) {
        return Refuse(run, kNoData);
    }
    const Result<Text> copied = PressCopy(run, *desktop, title);
    if (run.Ended) {
        return {};
    }
    run.User.RaiseMainWindow();
    if (iconic) {
        desktop->CloseWindow(GameSpyHwnd);
    }
    if (!copied.Ok() || (raw && TrimWhite(copied.Value).empty())) {
        return Refuse(run, kNoData);
    }
    return raw ? copied.Value : AddressIn(run, copied.Value);
}

}  // namespace lv
