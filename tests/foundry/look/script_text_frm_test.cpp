#include "foundry/look/script_text_frm.h"

#include "tests/foundry/look/game_start.h"

namespace lv {

class ScriptTextForm : public GameStart {
  protected:
    static RunScript Script(TextView path, TextView inner = "") {
        RunScript script;
        script.Name = "name";
        script.Path = path;
        script.Inner = inner;
        return script;
    }
};

TEST_F(ScriptTextForm, NumbersTheLinesAndSelectsOne) {
    const ScriptText_Frm form(run, "C:\\a.cfg", "one\r\n\ttwo\r\n", 2);
    EXPECT_EQ(form.Place_Lbl.Caption, "C:\\a.cfg");
    EXPECT_EQ(form.Lines_Lst.Items, (std::vector<Text>{"     1  one", "     2      two"}));
    EXPECT_EQ(form.Lines_Lst.ListIndex, 1);
}

TEST_F(ScriptTextForm, ALineBeyondTheTextSelectsNone) {
    EXPECT_EQ(ScriptText_Frm(run, "", "one\n", 7).Lines_Lst.ListIndex, -1);
    EXPECT_EQ(ScriptText_Frm(run, "", "", 1).Lines_Lst.ListIndex, -1);
}

TEST_F(ScriptTextForm, ReadsAFileOrWhatStandsInItsPlace) {
    EXPECT_EQ(TextOfRunScript(system.Disk, request, Script("C:\\QUAKE\\ID1\\more.cfg")).Value,
              "alias zoom \"fov 30\"\n");
    request.Given = {{"c:\\quake\\id1\\MORE.cfg", "edited"}};
    EXPECT_EQ(TextOfRunScript(system.Disk, request, Script("C:\\QUAKE\\ID1\\more.cfg")).Value, "edited");
}

TEST_F(ScriptTextForm, SaysWhereAScriptLies) {
    EXPECT_EQ(PlaceOfRunScript(Script("C:\\Q\\ID1\\PAK0.PAK", "default.cfg"), request),
              "C:\\Q\\ID1\\PAK0.PAK > default.cfg");
    EXPECT_EQ(PlaceOfRunScript(Script(""), request), "");
    request.Given = {{"C:\\Q\\ID1\\lv_666.qs", "", true}, {"C:\\Q\\ID1\\my.cfg", ""}};
    EXPECT_EQ(PlaceOfRunScript(Script("C:\\Q\\id1\\lv_666.qs"), request),
              "C:\\Q\\id1\\lv_666.qs   (as a launch would write it now)");
    EXPECT_EQ(PlaceOfRunScript(Script("C:\\Q\\id1\\my.cfg"), request), "C:\\Q\\id1\\my.cfg");
}

TEST_F(ScriptTextForm, AScriptThatIsNotThereIsToldOf) {
    user.Expect({"The Script", "There is no text to be shown."});
    ShowScriptText(run, request, Script(""), 1);
    user.Expect({"The Script", "There is no text to be shown."});
    ShowScriptText(run, request, Script("C:\\QUAKE\\ID1\\no.pak", "a.cfg"), 1);
}

}  // namespace lv
