#include "gamespy/spy_names.h"

#include <gmock/gmock.h>

#include "tests/gamespy/game_spy_fixture.h"

namespace lv {
namespace {

using ::testing::ElementsAre;

class SpyNamesTest : public GameSpyTest {};

TEST_F(SpyNamesTest, AreThoseOfTheSlotsInUseAsTheirBatchesSayThem) {
    ImageCombo executables;
    GameSpyConfig_Frm form(run, executables);
    const auto put = [&](std::size_t slot, TextView path, TextView script) {
        form.ExeSpy_Cbo[slot].Items = {Text(100, ' ').append(path)};
        form.ExeSpy_Cbo[slot].ListIndex = 0;
        form.ScriptSpy_Cbo[slot].Items = {Text(100, ' ').append(script)};
        form.ScriptSpy_Cbo[slot].ListIndex = script.empty() ? -1 : 0;
    };
    put(spy_slot::kQuake, "C:\\QUAKE\\quake.exe", "C:\\QUAKE\\ID1\\my own.cfg");
    put(spy_slot::kUnreal, "C:\\My Unreal\\unreal.exe", "C:\\My Unreal\\a.ini");
    put(spy_slot::kSin, "C:\\SIN\\sin.exe", "");
    form.UnRealInstalled_Chk.Value = 1;
    std::vector<Text> shown;
    for (const LaunchName& name : SpyNames(form)) {
        shown.push_back(Join(name.Written, name.InCommand ? "|command" : "", name.InScript ? "|script" : ""));
    }
    EXPECT_THAT(shown, ElementsAre("\"C:\\QUAKE\"", "quake.exe|command", "my own.cfg|script", "\"C:\\My Unreal\"",
                                   "unreal.exe|command", "a.ini|command"));
}

}  // namespace
}  // namespace lv
