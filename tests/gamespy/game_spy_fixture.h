// tests/gamespy/game_spy_fixture.h
//
// A launcher in memory with GameSpy 3D's window on the desktop, which copies when its menu is called.

#pragma once

#include "tests/support/launcher_fixture.h"

namespace lv {

class GameSpyTest : public LauncherTest {
  protected:
    static constexpr WindowHandle kWindow = 7;

    /// Shows the window; its copy command puts `copied` on the clipboard when it comes by the right keys.
    void ShowGameSpy(Text copied, Text title = "GameSpy 3D 2.20", Text menu = "%s") {
        system.Windows.Windows[kWindow] = {std::move(title), "Afx:400000:8:10008"};
        system.Windows.OnKeys = [this, copied, menu](std::string_view keys) {
            if (keys == "c" && lastKeys_ == menu) {
                system.Clip.Held = copied;
            }
            lastKeys_ = keys;
        };
    }
    void Minimise() { system.Windows.Windows[kWindow].Iconic = true; }

    void ExpectTold(TextView title, TextView text) { user.Expect({Text(title), Text(text), 0, false, true, "&OK"}); }

    using Lines = std::vector<std::string>;

  private:
    Text lastKeys_;
};

}  // namespace lv
