#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <fstream>

#include "tests/program/program_run.h"
#include "tests/program/screen.h"
#include "tests/support/game_yard.h"
#include "tests/support/test_paths.h"

namespace lv {

namespace {

constexpr const char* kOthers =
    "[Added Associations]\nx-scheme-handler/qw=added.desktop;\n\n[Default Applications]\n"
    "text/html = firefox.desktop\n";

void ChooseTakeGameLinks(const ProgramRun& program, const std::string& window) {
    ASSERT_TRUE(program.Id() > 0);
    ASSERT_TRUE(Activate(window));
    PressKey("alt+t");
    PressKey("t");
}

std::vector<std::string> WithWord(const std::string& word) {
    return {TestBinaryDir() + "/lorvane3d", word};
}

std::string Shown(const OwnProcess& program, const char* title) {
    const auto windows = ShownWindowsOf(program.Id(), title);
    return windows.empty() ? "" : windows.front();
}

}  // namespace

TEST(GameLinks, AreTakenAndGivenBackByTheMenu) {
    ProgramHome home("game_links");
    home.Prepare();
    const auto list = home.Config / "mimeapps.list";
    const auto entry = home.Root / "data/applications/lorvane3d-links.desktop";
    std::ofstream(list) << kOthers;
    ProgramRun program(home);
    const std::string window = program.WaitForWindow();
    EXPECT_FALSE(std::filesystem::exists(entry)) << "nobody has asked for it";
    ChooseTakeGameLinks(program, window);
    EXPECT_TRUE(WaitUntil([&] { return ReadBytes(list) != kOthers; }));
    EXPECT_EQ(ReadBytes(list),
              "[Added Associations]\nx-scheme-handler/qw=added.desktop;\n\n[Default Applications]\n"
              "x-scheme-handler/quake2=lorvane3d-links.desktop;\n"
              "x-scheme-handler/quake=lorvane3d-links.desktop;\n"
              "x-scheme-handler/qw=lorvane3d-links.desktop;\n"
              "text/html = firefox.desktop\n");
    EXPECT_NE(ReadBytes(entry).find("Exec=\"" + TestBinaryDir() + "/lorvane3d\" %u\n"), std::string::npos);
    EXPECT_EQ(OutputOf({"desktop-file-validate", entry.string()}), "");
    ASSERT_TRUE(Activate(window));
    PressKey("alt+t");
    KeepScreenshot("game_links_taken");
    PressKey("Escape");
    ChooseTakeGameLinks(program, window);
    EXPECT_TRUE(WaitUntil([&] { return !std::filesystem::exists(entry); }));
    EXPECT_EQ(ReadBytes(list), kOthers);
    EXPECT_EQ(program.EndByF12(), 0);
}

TEST(GameLinks, GoToTheProgramByTheDesktopsOwnRules) {
    ProgramHome home("game_links_opened");
    home.Prepare();
    ProgramRun program(home);
    const std::string window = program.WaitForWindow();
    ChooseTakeGameLinks(program, window);
    ASSERT_TRUE(WaitUntil([&] { return std::filesystem::exists(home.Config / "mimeapps.list"); }));
    OwnProcess desktop(home, {"gio", "open", "qw://host.example:27500"});
    EXPECT_EQ(desktop.WaitForEnd(), 0);
    const std::string dialog = program.WaitForDialog("^Join Server$");
    ASSERT_NE(dialog, "");
    PressKey("Escape");
    EXPECT_TRUE(WaitUntil([&] { return !IsShown(dialog); }));
    EXPECT_EQ(program.EndByF12(), 0);
}

TEST(GameLinks, AWordGivenWhileAnotherStartComesUpIsNotLost) {
    for (const int milliseconds : {0, 150, 500, 1000}) {
        SCOPED_TRACE(milliseconds);
        ProgramHome home("word_while_coming_up");
        home.Prepare();
        ProgramRun first(home);
        OutputOf({"sleep", std::to_string(milliseconds / 1000.0)});
        OwnProcess second(home, WithWord("qw://host.example:27500"));
        std::string dialog;
        EXPECT_TRUE(WaitUntil([&] {
            dialog = Shown(first, "^Join Server$") + Shown(second, "^Join Server$");
            return !dialog.empty();
        }));
        EXPECT_TRUE(WaitUntil([&] { return first.IsRunning() != second.IsRunning(); })) << "one of them stays";
    }
}

TEST(GameLinks, AWordThatTheRunningProgramDoesNotListenToIsTold) {
    ProgramHome home("word_to_the_deaf");
    home.Prepare();
    ProgramRun first(home);
    ASSERT_NE(first.WaitForWindow(), "");
    first.Signal(SIGSTOP);
    ProgramRun second(home, Environment{}, {"qw://host.example:27500"});
    const auto isTold = [&] {
        const auto shown = ShownWindowsOf(second.Id(), kPlainTitle);
        return std::any_of(shown.begin(), shown.end(), IsDialog);
    };
    ASSERT_TRUE(WaitUntil(isTold, 30000));
    const std::string box = second.WaitForDialog(kPlainTitle);
    ASSERT_NE(box, "");
    KeepScreenshot("word_not_given");
    EXPECT_EQ(second.TextOfBox(box),
              "Lorvane 3D is running already, and does not answer. Answer what its window asks, and try again.\n\n"
              "It was not given -->\n\n\tqw://host.example:27500");
    PressKey("Escape");
    EXPECT_EQ(second.WaitForEnd(), 1);
    first.Signal(SIGCONT);
    EXPECT_EQ(first.EndByF12(), 0);
}

TEST(OfferedWord, MayBeALinkToAFile) {
    ProgramHome home("offered_file_link");
    home.Prepare();
    std::filesystem::create_directories(home.Root / "down loads");
    std::ofstream(home.Root / "down loads" / "dm3.bsp", std::ios::binary).write("\x1D\0\0\0", 4);
    ProgramRun first(home);
    ASSERT_NE(first.WaitForWindow(), "");
    OwnProcess second(home, WithWord("file://localhost" + home.Root.string() + "/down%20loads/dm3.bsp"));
    EXPECT_EQ(second.WaitForEnd(), 0);
    const std::string box = first.WaitForDialog("^Dropped File$");
    ASSERT_NE(box, "");
    EXPECT_NE(first.TextOfBox(box).find("down loads\\dm3.bsp"), std::string::npos);
    PressKey("Escape");
    OwnProcess third(home, WithWord("file://nas/dm3.bsp"));
    EXPECT_EQ(third.WaitForEnd(), 0);
    const std::string told = first.WaitForDialog("^Dropped File$");
    EXPECT_NE(first.TextOfBox(told).find("That link names no file of this machine."), std::string::npos);
}

TEST(OfferedWord, OfExportedSettingsAsksBeforeItImports) {
    ProgramHome home("offered_settings");
    home.Prepare();
    const std::string file = (home.Root / "mine.lv3d").string();
    OwnProcess exporting(home, {TestBinaryDir() + "/lorvane3d", "--export", file});
    ASSERT_EQ(exporting.WaitForEnd(), 0);
    home.Set("Options", "Executables", "Other;c:\\quake\\quake.exe");
    ProgramRun first(home);
    ASSERT_NE(first.WaitForWindow(), "");
    OwnProcess second(home, WithWord("file://" + file));
    EXPECT_EQ(second.WaitForEnd(), 0);
    ASSERT_NE(first.WaitForDialog("^Import Settings$"), "");
    PressKey("Escape");
    EXPECT_EQ(home.Get("Options", "Executables"), "Other;c:\\quake\\quake.exe");
}

}  // namespace lv
