// What holds for every launch, whatever is ticked: some thousands of seeded random selections, games and profiles.

#include <gtest/gtest.h>

#include <random>

#include "launch/environment_lines.h"
#include "launch/launch_files.h"
#include "tests/support/launch_input.h"

namespace lv {
namespace {

constexpr int kLaunches = 4000;
constexpr unsigned kSeed = 19981231;

class Dice {
  public:
    explicit Dice(unsigned seed) : source_(seed) {}

    bool Toss() { return Below(2) == 1; }
    int Below(int count) { return static_cast<int>(source_() % static_cast<unsigned>(count)); }

    template <std::size_t N>
    TextView OneOf(const TextView (&choices)[N]) {
        return choices[static_cast<std::size_t>(Below(static_cast<int>(N)))];
    }
    template <std::size_t N>
    std::optional<Text> PerhapsOneOf(const TextView (&choices)[N]) {
        return Below(4) == 0 ? std::nullopt : std::optional(Text(OneOf(choices)));
    }

  private:
    std::mt19937 source_;
};

LaunchInput AnyGame(Dice& dice) {
    constexpr TextView kQuakes[] = {"QUAKE.EXE", "winquake.exe", "GLQUAKE.EXE", "qwcl.exe", "vquake.exe"};
    switch (dice.Below(7)) {
        case 0:
            return QuakeLaunch(dice.OneOf(kQuakes));
        case 1:
            return Hexen2Launch(dice.Toss() ? "H2.EXE" : "GLH2.EXE");
        case 2:
            return Quake2Launch();
        case 3:
            return UnrealLaunch();
        case 4:
            return SinLaunch();
        case 5:
            return Heretic2Launch();
        default:
            return HalfLifeLaunch();
    }
}

void TickAnything(LaunchSelection& selected, Dice& dice) {
    for (const Option option : {Option::LaunchQspy_Chk,
                                Option::QSpy_Chk,
                                Option::Server_Chk,
                                Option::Map_Chk,
                                Option::Game_Chk,
                                Option::Memory_Chk,
                                Option::NOLAN_Chk,
                                Option::NOUDP_Chk,
                                Option::Script_Chk,
                                Option::NOCDAUDIO_Chk,
                                Option::Demo_Chk,
                                Option::nosound_chk,
                                Option::Listen_Chk,
                                Option::Bench_Chk,
                                Option::ShowSet_Chk,
                                Option::UnrealSimulateFirstRun_Chk,
                                Option::UnrealDisableLogWindow_Chk,
                                Option::UnrealDisableK6Support_Chk,
                                Option::UnrealDisableMMXSupport_Chk,
                                Option::UnrealNoDirectSound_Chk}) {
        selected.Ticked.Set(option, dice.Toss());
    }
    selected.Ticked.Set(Option::Dedicated_Chk, dice.Below(5) == 0);
    constexpr TextView kServers[] = {"10.0.0.1;26000;0;", "frag.example;;3;", "frag.example;27015;9;secret", "host"};
    constexpr TextView kMods[] = {"-game ctf", "-game ID1", "-game baseq2", "-game base", "-game valve"};
    constexpr TextView kMemory[] = {"-winmem 8", "-winmem 48"};
    constexpr TextView kScripts[] = {"C:\\QUAKE\\ID1\\my.cfg", "C:\\Unreal\\System\\my own.ini"};
    constexpr TextView kDemos[] = {"playdemo demo1.dem", "demomap demo1.dm2"};
    constexpr TextView kMaps[] = {"START", "DmDeck16"};
    selected.Server = dice.PerhapsOneOf(kServers);
    selected.Game = dice.PerhapsOneOf(kMods);
    selected.Memory = dice.PerhapsOneOf(kMemory);
    selected.Script = dice.PerhapsOneOf(kScripts);
    selected.Demo = dice.PerhapsOneOf(kDemos);
    selected.Map = dice.PerhapsOneOf(kMaps);
}

void SetAnything(ProfileSnapshot& profile, Dice& dice) {
    constexpr TextView kValues[] = {"0", "1", ".5", "1.7", "GL_NEAREST", "True"};
    for (ProfileSnapshot::Tunable& tunable : profile.Tunables) {
        tunable = {static_cast<Index>(dice.Below(3)), static_cast<Index>(dice.Below(4) - 1), Text(dice.OneOf(kValues))};
    }
    for (Index& flag : profile.Flags) {
        flag = static_cast<Index>(dice.Below(2));
    }
    profile.UseRez = static_cast<Index>(dice.Below(2));
    profile.ResolutionsPos = static_cast<Index>(dice.Below(4) - 1);
    profile.ResolutionsPos_Content = Padded("640x480", "-width 640");
    profile.Q2_ResolutionsPos = static_cast<Index>(dice.Below(11) - 1);
    profile.Q2_ResolutionsPos_Content = "640x480";
    profile.UseBits = static_cast<Index>(dice.Below(2));
    profile.BitsPos_Content = Padded("16 bit color", "-bpp 16");
    profile.Windowed = static_cast<Index>(dice.Below(2));
    profile.UseGraphicsDriver = static_cast<Index>(dice.Below(2));
    profile.GraphicsDriver = static_cast<Index>(dice.Below(10) - 1);
}

LaunchInput AnyLaunch(Dice& dice) {
    LaunchInput input = AnyGame(dice);
    TickAnything(input.Selected, dice);
    SetAnything(input.Profile, dice);
    constexpr Index kCards[] = {0, 1, 2, 100};
    input.Game.CardClass = kCards[dice.Below(4)];
    input.Game.VidCard = input.Game.CardClass;
    input.Game.UsesAccelerator = dice.Below(4) != 0;
    input.Hooks.GameSpyFetch = [] { return std::optional<Text>("10.0.0.9:27910"); };
    return input;
}

struct Finished {
    LaunchTexts Texts;
    Text Script;
    Text Environment;
    Text Batch;
};

/// The launch carried through to its files' texts.
Finished Finish(const LaunchInput& input) {
    Finished done;
    done.Texts = input.Compose();
    AddCommandLineAdditions(input.Selected, done.Texts);
    done.Script = ScriptText(done.Texts, input.Game);
    if (!done.Script.empty()) {
        AddScriptExec(done.Texts);
    }
    done.Environment = EnvironmentLines(input.Game, input.Profile);
    done.Batch = BatchText(done.Environment, input.Selected.Ticked.Has(Option::ShowSet_Chk), ExeDriveOf(input.Selected),
                           input.Game.DefaultGameDirectory, done.Texts, input.Game);
    return done;
}

int CountOf(TextView text, TextView find) {
    int count = 0;
    for (std::size_t at = text.find(find); at != TextView::npos; at = text.find(find, at + 1)) {
        ++count;
    }
    return count;
}

bool Has(TextView text, TextView find) {
    return text.find(find) != TextView::npos;
}

/// Without their line ends; a last line that has none fails the test.
std::vector<Text> LinesOf(TextView text) {
    std::vector<Text> lines;
    while (!text.empty()) {
        const std::size_t end = text.find("\r\n");
        if (end == TextView::npos) {
            ADD_FAILURE() << "no line end behind: " << text;
            return lines;
        }
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end + 2);
    }
    return lines;
}

/// Runs the check over all launches that nothing stops.
template <class Check>
void ForEachLaunch(const Check& check) {
    Dice dice(kSeed);
    int checked = 0;
    for (int i = 0; i < kLaunches && !testing::Test::HasFailure(); ++i) {
        const LaunchInput input = AnyLaunch(dice);
        if (input.Compose().Stop) {
            continue;
        }
        const Finished done = Finish(input);
        SCOPED_TRACE(Join("launch ", std::to_string(i), ": ", done.Batch, "\n---\n", done.Script));
        check(input, done);
        ++checked;
    }
    EXPECT_GT(checked, kLaunches / 2);
}

TEST(EveryLaunch, EndsEachScriptLineInALineEnd) {
    ForEachLaunch([](const LaunchInput&, const Finished& done) {
        for (const TextView script : {TextView(done.Texts.QuakeScript), TextView(done.Texts.Quake2Script)}) {
            for (const Text& line : LinesOf(script)) {
                EXPECT_EQ(line.find_first_of("\r\n"), Text::npos) << line;
            }
        }
    });
}

TEST(EveryLaunch, HasNoDoubledBlankInItsCommands) {
    ForEachLaunch([](const LaunchInput&, const Finished& done) {
        EXPECT_FALSE(Has(done.Texts.GameCommand, "  "));
        EXPECT_FALSE(Has(done.Texts.UnrealCommand, "  "));
    });
}

TEST(EveryLaunch, EndsBothCommandsInABlank) {
    ForEachLaunch([](const LaunchInput&, const Finished& done) {
        EXPECT_TRUE(done.Texts.GameCommand.ends_with(' '));
        EXPECT_TRUE(done.Texts.UnrealCommand.ends_with(' '));
    });
}

TEST(EveryLaunch, OfUnrealHasNeitherAScriptNorAnExec) {
    ForEachLaunch([](const LaunchInput& input, const Finished& done) {
        if (input.Game.GameKind == Game::Unreal) {
            EXPECT_EQ(done.Script, "");
            EXPECT_EQ(done.Texts.QuakeScript, "");
            EXPECT_EQ(done.Texts.Quake2Script, "");
            EXPECT_FALSE(Has(done.Texts.UnrealCommand, "+exec"));
            EXPECT_FALSE(Has(done.Texts.GameCommand, "+exec"));
        }
    });
}

TEST(EveryLaunch, RunsItsScriptExactlyWhenThereIsOne) {
    ForEachLaunch([](const LaunchInput&, const Finished& done) {
        EXPECT_EQ(CountOf(done.Batch, "+exec lv_666.qs"), done.Script.empty() ? 0 : 1);
    });
}

TEST(EveryLaunch, HasItsZoneOnceButForUnreal) {
    ForEachLaunch([](const LaunchInput& input, const Finished& done) {
        EXPECT_EQ(CountOf(done.Texts.GameCommand, "-zone 512 "), input.Game.GameKind == Game::Unreal ? 0 : 1);
        EXPECT_EQ(CountOf(done.Texts.UnrealCommand, "-zone 512 "), 0);
    });
}

TEST(EveryLaunch, HasSetLinesThatAreNameAndValue) {
    ForEachLaunch([](const LaunchInput&, const Finished& done) {
        for (const Text& line : LinesOf(done.Environment)) {
            ASSERT_TRUE(line.starts_with("SET ")) << line;
            const std::size_t equals = line.find('=');
            ASSERT_NE(equals, Text::npos) << line;
            EXPECT_GT(equals, 4u) << line;
            EXPECT_LT(equals + 1, line.size()) << line;
            EXPECT_EQ(line.find_first_of(" %#", 4), Text::npos) << line;
        }
    });
}

TEST(EveryLaunch, HasNoSetLinesWithoutAGlideCard) {
    ForEachLaunch([](const LaunchInput& input, const Finished& done) {
        const bool glide = input.Game.CardClass == 1 || input.Game.CardClass == 2;
        if (!input.Game.UsesAccelerator || !glide) {
            EXPECT_EQ(done.Environment, "");
        }
    });
}

TEST(EveryLaunch, TellsAVoodoo2ItsClock) {
    ForEachLaunch([](const LaunchInput& input, const Finished& done) {
        if (input.Game.UsesAccelerator && input.Game.CardClass == 2) {
            EXPECT_EQ(CountOf(done.Environment, "SET SSTV2_GRXCLK="), 1);
            EXPECT_FALSE(Has(done.Environment, "SET SST_"));
        }
    });
}

TEST(EveryLaunch, HasABatchWithoutALineEndAtItsEnd) {
    ForEachLaunch([](const LaunchInput& input, const Finished& done) {
        // Half-Life's password brings line ends of its own into the command.
        if (input.Game.GameKind != Game::HalfLife || !Has(done.Texts.GameCommand, "+password ")) {
            EXPECT_FALSE(done.Batch.ends_with('\n'));
        }
    });
}

TEST(EveryLaunch, HasABatchOfSetLinesDriveDirectoryAndCommand) {
    ForEachLaunch([](const LaunchInput& input, const Finished& done) {
        const Text shown = input.Selected.Ticked.Has(Option::ShowSet_Chk) ? "SET\r\nPAUSE\r\n" : "";
        const Text start = Join(done.Environment, shown, "C:\r\ncd ", input.Game.DefaultGameDirectory, "\r\n");
        EXPECT_TRUE(done.Batch.starts_with(start));
        EXPECT_TRUE(
            done.Batch.substr(start.size()).starts_with(done.Texts.GameCommand.substr(0, done.Texts.PrefixLength - 1)));
    });
}

TEST(EveryLaunch, SetsVariablesOnlyInTheQuake2Dialect) {
    ForEachLaunch([](const LaunchInput&, const Finished& done) {
        for (const Text& line : LinesOf(done.Texts.QuakeScript)) {
            EXPECT_FALSE(line.starts_with("set ")) << line;
        }
        for (const Text& line : LinesOf(done.Texts.Quake2Script)) {
            EXPECT_FALSE(line.starts_with("gl_") || line.starts_with("GL_") || line.starts_with("r_") ||
                         line.starts_with("_windowed") || line.starts_with("d_mipcap") || line == "nosound 1")
                << line;
        }
    });
}

TEST(EveryLaunch, LeavesHalfLifesScriptWithoutSets) {
    ForEachLaunch([](const LaunchInput& input, const Finished& done) {
        if (input.Game.GameKind == Game::HalfLife) {
            EXPECT_FALSE(Has(done.Script, "set "));
        }
    });
}

TEST(EveryLaunch, NeverAsksForABitDepth) {
    ForEachLaunch([](const LaunchInput&, const Finished& done) { EXPECT_FALSE(Has(done.Batch, "-bpp")); });
}

TEST(EveryLaunch, IsWrappedExactlyForPlainQuakeOnline) {
    ForEachLaunch([](const LaunchInput& input, const Finished& done) {
        const bool plain = input.Selected.ExecutablePath == "C:\\QUAKE\\QUAKE.EXE";
        const bool online =
            input.Selected.Ticked.Has(Option::QSpy_Chk) || input.Selected.Ticked.Has(Option::Server_Chk);
        EXPECT_EQ(done.Texts.GameCommand.starts_with("qlaunch "), plain && online);
        EXPECT_FALSE(Has(done.Texts.UnrealCommand, "qlaunch"));
    });
}

TEST(EveryLaunch, ReachesTheLastStepOfItsComposition) {
    ForEachLaunch(
        [](const LaunchInput& input, const Finished&) { EXPECT_EQ(input.Compose().LaunchStep, LaunchStep::StartMap); });
}

TEST(EveryLaunch, StopsOnlyForADedicatedServer) {
    Dice dice(kSeed);
    int stops = 0;
    for (int i = 0; i < kLaunches; ++i) {
        const LaunchInput input = AnyLaunch(dice);
        const LaunchTexts texts = input.Compose();
        if (texts.Stop) {
            ++stops;
            EXPECT_TRUE(input.Selected.Ticked.Has(Option::Dedicated_Chk));
            EXPECT_EQ(texts.Stop.Kind, StopKind::Message);
            EXPECT_EQ(texts.LaunchStep, LaunchStep::DedicatedServer);
            EXPECT_FALSE(Has(texts.GameCommand, "dedicated"));
        }
    }
    EXPECT_GT(stops, 0);
}

}  // namespace
}  // namespace lv
