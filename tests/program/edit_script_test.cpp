// The road of a script: opened in the editor's window, changed, saved, and executed by a real engine.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "tests/program/program_run.h"
#include "tests/program/screen.h"
#include "tests/support/game_yard.h"

namespace lv {

namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

namespace fs = std::filesystem;

constexpr const char* kEditorTitle = "^Setup Foundry - \\[";
constexpr const char* kBoxTitle = "^Setup Foundry$";  // the splash's too
constexpr const char* kBackupTitle = "^SetupFoundry Information$";
constexpr const char* kChangesTitle = "^What This Save Changes$";
constexpr const char* kAliasTitle = "^Alias Editor$";

/// A server as the game: it has no keys and prints no value by itself. With aliases of its own it says what the
/// script's bind lines are, and what a value has become.
void PrepareServer(ProgramHome& home) {
    home.Prepare();
    fs::remove(home.Quake / "QUAKE.EXE");
    fs::create_symlink("/usr/games/darkplaces-server", home.Quake / "QUAKE.EXE");
    fs::rename(home.Quake / "ID1", home.Quake / "id1");
    std::ofstream(home.Quake / "id1/server.cfg") << "alias bind \"echo key $1 does $2\"\nalias ask_bob cl_bob\n";
    std::ofstream(home.Quake / "id1/player.cfg", std::ios::binary) << "alias hello \"echo the first greeting\"\r\n"
                                                                      "cl_bob 0.03\r\n"
                                                                      "bind w +forward\r\n"
                                                                      "hello\r\n"
                                                                      "ask_bob\r\n"
                                                                      "echo the script ran\r\n";
    home.Set("Options", "UseScripts", "1");
    home.Set("DefaultScript", "c:\\quake\\id1", "c:\\quake\\id1\\player.cfg");
    home.Set("Options", "UseCustomCommandLine", "1");
    home.Set("Options", "CustomCommandLineText", "+exec server.cfg");
}

std::vector<std::string> NamesIn(const fs::path& directory) {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(directory)) {
        names.push_back(entry.path().filename().string());
    }
    return names;
}

/// The program with the editor open on the script.
class EditedProgram : public ProgramRun {
  public:
    /// A script that it has not saved yet: each opening tells of a backup.
    explicit EditedProgram(const ProgramHome& home, const std::function<void(EditedProgram&)>& answer = {})
        : ProgramRun(home), main_(WaitForWindow()) {
        Activate(main_);
        PressKey("F3");
        Answer(kBackupTitle, "Return");
        if (answer) {
            answer(*this);
        }
        EXPECT_TRUE(WaitForEditor()) << "no editor came up, or something stands over it";
        Activate(editor_);
    }

    void BindJumpTo(const std::string& key) {
        GoTo("jump");
        PressKey("Return");  // the row waits for a key
        PressKey(key);
    }

    /// The box above still has what was typed there last, and answers behind all that was pressed.
    static void WaitUntilKeysAreRead(const std::string& typed) {
        EXPECT_TRUE(WaitUntil([&] {
            PressKey("ctrl+f");
            PressKey("ctrl+a");
            return SelectedText() == typed;
        }));
    }

    /// Leads the keyboard there.
    void GoTo(const std::string& text) {
        PressKey("ctrl+f");
        PressKey("ctrl+a");
        TypeText(text);
        PressKey("Return");
    }

    /// Waits for the box and presses the key in it.
    void AnswerAlone(const std::string& title, const std::string& key) {
        WaitForDialog(title);
        PressKey(key);
        EXPECT_TRUE(WaitUntil([&] { return ShownWindowsOf(Id(), title).empty(); })) << title << " stays";
    }

    /// The same, and goes on in the editor if that is there.
    void Answer(const std::string& title, const std::string& key) {
        AnswerAlone(title, key);
        if (!editor_.empty()) {
            EXPECT_TRUE(Activate(editor_));
        }
    }

    /// Walks the dialog until it is in the field with this text, and types the other.
    void ReplaceInDialog(const std::string& title, const std::string& before, const std::string& after) {
        WaitForDialog(title);
        EXPECT_TRUE(WaitUntil([&] {
            PressKey("Tab");
            PressKey("ctrl+a");
            return SelectedText() == before;
        })) << "no field has "
            << before;
        TypeText(after);
    }

    void CloseEditor() {
        PressKey("alt+F4");
        EXPECT_TRUE(WaitUntil([&] { return ShownWindowsOf(Id(), kEditorTitle).empty(); })) << "the editor stays";
        editor_.clear();
    }

    void Launch() {
        ASSERT_TRUE(Activate(main_));
        PressKey("F2");
    }

  private:
    bool WaitForEditor() {
        return WaitUntil([&] {
            const std::vector<std::string> shown = ShownWindowsOf(Id(), kEditorTitle);
            editor_ = shown.empty() ? std::string() : shown.front();
            return !editor_.empty() && ShownWindowsOf(Id(), kBoxTitle).empty();
        });
    }

    std::string main_;
    std::string editor_;
};

TEST(EditScript, TheEngineExecutesWhatWasEditedAndSaved) {
    ProgramHome home("edit_script");
    PrepareServer(home);
    EditedProgram program(home);

    program.BindJumpTo("e");

    program.GoTo("hello");
    PressKey("Return");
    program.ReplaceInDialog(kAliasTitle, "echo the first greeting", "echo the second greeting");
    program.Answer(kAliasTitle, "alt+o");

    program.GoTo("weapon bob");
    PressKey("ctrl+a");
    TypeText("0.05");

    KeepScreenshot("edit_script");
    PressKey("ctrl+s");
    program.AnswerAlone(kChangesTitle, "alt+s");  // a script that another hand has written
    program.Answer(kBoxTitle, "Return");
    program.CloseEditor();
    program.Launch();
    const fs::path said = home.Root / "said.txt";
    ASSERT_TRUE(WaitForText(said, "the script ran"));
    const std::string output = ReadBytes(said);
    EXPECT_THAT(output, HasSubstr("|..Setup Foundry ROCKS!..|"));
    EXPECT_THAT(output, HasSubstr("key e does +jump"));
    EXPECT_THAT(output, HasSubstr("key w does +forward"));
    EXPECT_THAT(output, HasSubstr("the second greeting"));
    EXPECT_THAT(output, Not(HasSubstr("the first greeting")));
    EXPECT_THAT(output, HasSubstr("\"cl_bob\" is \"0.05\""));
}

TEST(EditScript, WhatTheEndOfTheSessionFoundUnsavedIsOfferedAndSaved) {
    ProgramHome home("rescued_script");
    PrepareServer(home);
    const fs::path script = home.Quake / "id1/player.cfg";
    const std::string before = ReadBytes(script);
    {
        EditedProgram program(home);
        program.BindJumpTo("e");
        program.WaitUntilKeysAreRead("jump");
        program.Signal(SIGTERM);
        EXPECT_TRUE(program.WaitForEnd()) << "the program stays";
    }
    EXPECT_EQ(ReadBytes(script), before);
    EXPECT_THAT(NamesIn(script.parent_path()), Contains(StartsWith("SetupFoundry_Rescue_")));

    EditedProgram program(home, [](EditedProgram& opening) { opening.Answer(kBoxTitle, "alt+t"); });
    PressKey("ctrl+s");
    program.AnswerAlone(kChangesTitle, "alt+s");  // a script that another hand has written
    program.Answer(kBoxTitle, "Return");
    EXPECT_TRUE(WaitForText(script, "bind \"e\"             \"+jump\"")) << ReadBytes(script);
    EXPECT_THAT(NamesIn(script.parent_path()), Not(Contains(StartsWith("SetupFoundry_Rescue_"))));
}

}  // namespace

}  // namespace lv
