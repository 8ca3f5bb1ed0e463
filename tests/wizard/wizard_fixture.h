// tests/wizard/wizard_fixture.h
//
// The setup wizard's window on a platform in memory.

#pragma once

#include "tests/support/launcher_fixture.h"
#include "wizard/install_frm.h"

namespace lv {

class WizardTest : public LauncherTest {
  protected:
    enum Row { kQuake, kHexen2, kQuake2, kUnreal, kSin, kHeretic2, kShogo, kBlood2, kHalfLife };

    static void Tick(Install_Frm& form, Row row) { form.Game_Chk[row].Value = 1; }
    void ExpectTold(TextView text) { user.Expect({"Lorvane 3D", Text(text), 0, false, true, "&OK"}); }
    void ExpectWalkOffer(TextView games, int answer) {
        user.Expect({"Lorvane 3D",
                     "These games (" + Text(games) +
                         ") were not found in any of the 'usual' places.\r\n\r\n"
                         "Would you like me to do an extensive hard drive search?\r\n(This could take a few minutes).",
                     answer, false, true, "&Yes,&No"});
    }
};

}  // namespace lv
