#include <gtest/gtest.h>

#include "tests/program/program_run.h"
#include "tests/program/screen.h"
#include "tests/support/game_yard.h"
#include "tests/support/test_paths.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

constexpr const char* kName = "../Duel; 50% \"x\" $HOME `id` \\";
constexpr const char* kStoredName = "../Duel%3B 50%25 \"x\" $HOME `id` \\";
constexpr const char* kEntry = "lorvane3d-setup-_2E_2E_2Fduel_3B_2050_25_20_22x_22_20_24home_20_60id_60_20_5C.desktop";

void KeepSetup(ProgramHome& home, const std::string& storedName) {
    home.Set("Setups", "Names", "1=" + storedName);
    home.Set("Setups", "Setup1", "1;Executable=C:\\QUAKE\\QUAKE.EXE");
}

/// A key of a desktop entry, its escapes undone as the readers of such files undo them.
std::string ValueOf(const std::string& entry, const std::string& key) {
    const std::size_t at = entry.find("\n" + key + "=");
    if (at == std::string::npos) {
        return "(none)";
    }
    const std::size_t start = at + key.size() + 2;
    const std::string raw = entry.substr(start, entry.find('\n', start) - start);
    std::string value;
    for (std::size_t i = 0; i < raw.size(); ++i) {
        if (raw[i] != '\\' || i + 1 == raw.size()) {
            value += raw[i];
            continue;
        }
        switch (raw[++i]) {
            case 's':
                value += ' ';
                break;
            case 'n':
                value += '\n';
                break;
            case 't':
                value += '\t';
                break;
            case 'r':
                value += '\r';
                break;
            default:
                value += raw[i];
        }
    }
    return value;
}

/// The words of the key Exec as a desktop starts them: no shell has a part in it.
std::vector<std::string> WordsOfExec(const std::string& entry) {
    const std::string line = ValueOf(entry, "Exec");
    std::vector<std::string> words;
    bool isQuoted = false;
    bool isInWord = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == ' ' && !isQuoted) {
            isInWord = false;
            continue;
        }
        if (!isInWord) {
            words.emplace_back();
            isInWord = true;
        }
        if (line[i] == '"') {
            isQuoted = !isQuoted;
        } else if (line[i] == '\\' && isQuoted && i + 1 < line.size()) {
            words.back() += line[++i];
        } else if (line[i] == '%' && i + 1 < line.size()) {
            EXPECT_EQ(line[++i], '%') << "a field code: " << line;
            words.back() += '%';
        } else {
            words.back() += line[i];
        }
    }
    EXPECT_FALSE(isQuoted) << line;
    return words;
}

/// Tools, Setups, Setups, and its button; ticks both places.
void MakeLaunchersByHand(ProgramRun& program) {
    ASSERT_TRUE(Activate(program.WaitForWindow()));
    PressKey("alt+t");
    PressKey("e");
    PressKey("u");
    ASSERT_NE(program.WaitForDialog("^Setups$"), "");
    PressKey("alt+m");
    const std::string places = program.WaitForDialog("^Make a Launcher$");
    ASSERT_NE(places, "");
    PressKey("alt+m");
    PressKey("alt+d");
    KeepScreenshot("launcher_places");
    PressKey("Return");
    EXPECT_TRUE(WaitUntil([&] { return !IsShown(places); }));
    const std::string told = program.WaitForDialog("^Make a Launcher$");
    KeepScreenshot("launcher_told");
    EXPECT_NE(program.TextOfBox(told).find(kEntry), std::string::npos);
    PressKey("Return");
    EXPECT_TRUE(WaitUntil([&] { return !IsShown(told); }));
    PressKey("Escape");
}

}  // namespace

TEST(LauncherOfASetup, IsMadeByHandAndStartsTheGame) {
    ProgramHome home("launcher");
    home.Prepare();
    KeepSetup(home, kStoredName);
    fs::create_directory(home.Root / "Desktop");
    {
        ProgramRun program(home);
        MakeLaunchersByHand(program);
        EXPECT_EQ(program.EndByF12(), 0);
    }
    const fs::path onDesktop = home.Root / "Desktop" / kEntry;
    const std::string entry = ReadBytes(home.Root / "data/applications" / kEntry);
    ASSERT_FALSE(entry.empty());
    EXPECT_EQ(ReadBytes(onDesktop), entry);
    EXPECT_EQ(fs::status(onDesktop).permissions(), fs::perms(0755));
    const std::string program = TestBinaryDir() + "/lorvane3d";
    EXPECT_EQ(ValueOf(entry, "Name"), kName);
    EXPECT_EQ(ValueOf(entry, "Comment"), "Quake");
    EXPECT_EQ(ValueOf(entry, "TryExec"), program);
    EXPECT_TRUE(ReadBytes(ValueOf(entry, "Icon")).starts_with("\x89PNG")) << ValueOf(entry, "Icon");
    const std::vector<std::string> words = WordsOfExec(entry);
    EXPECT_EQ(words, (std::vector<std::string>{program, std::string("--setup=") + kName, "--tell"}));
    EXPECT_EQ(OutputOf({"sh", "-c", "desktop-file-validate \"$0\" 2>&1", onDesktop.string()}), "");
    OwnProcess start(home, words);
    EXPECT_EQ(start.WaitForEnd(), 0) << ReadBytes(home.Root / "said.txt");
    EXPECT_FALSE(WaitForOutput(home.Quake / "output.txt").empty());
}

TEST(LauncherOfASetup, ThatIsGoneIsToldInAWindow) {
    ProgramHome home("launcher_gone");
    home.Prepare();
    KeepSetup(home, "Evening");
    ProgramRun start(home, Environment(), {"--setup=Evenin", "--tell"});
    const std::string box = start.WaitForDialog(kPlainTitle);
    ASSERT_NE(box, "");
    KeepScreenshot("launcher_gone");
    EXPECT_NE(start.TextOfBox(box).find("Did you mean \"Evening\"?"), std::string::npos) << start.TextOfBox(box);
    PressKey("Return");
    EXPECT_EQ(start.WaitForEnd(), 3);
}

TEST(LauncherOfASetup, ThatIsGoneIsPrintedWhereThereIsNoDisplay) {
    ProgramHome home("launcher_unseen");
    home.Prepare();
    OwnProcess start(home, {"env", "-u", "DISPLAY", "-u", "WAYLAND_DISPLAY", TestBinaryDir() + "/lorvane3d",
                            "--setup=Evening", "--tell"});
    EXPECT_EQ(start.WaitForEnd(), 3);
    EXPECT_NE(ReadBytes(home.Root / "said.txt").find("Evening"), std::string::npos);
}

}  // namespace lv
