#include "commands/command_words.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

TEST(CommandWords, TheOptionsOfTheHelpInTheirOrder) {
    const std::vector<std::pair<Text, Text>> listed = {
        {"--help", ""},    {"--version", ""}, {"--list", "[KIND]"},  {"--launch", "TITLE"},     {"--setup", "NAME"},
        {"--mod", "NAME"}, {"--map", "NAME"}, {"--script", "NAME"},  {"--server", "HOST:PORT"}, {"--profile", "NAME"},
        {"--dry-run", ""}, {"--tell", ""},    {"--check", "SCRIPT"}, {"--export", "FILE"},      {"--import", "FILE"},
    };
    ASSERT_EQ(AllOptionWords().size(), listed.size());
    for (std::size_t i = 0; i < listed.size(); ++i) {
        EXPECT_EQ(AllOptionWords()[i].Word, listed[i].first);
        EXPECT_EQ(AllOptionWords()[i].Value, listed[i].second);
        EXPECT_TRUE(AllOptionWords()[i].Help.ends_with('.')) << listed[i].first;
    }
}

TEST(CommandWords, TheKindsOfLists) {
    const std::vector<std::pair<Text, Listed>> listed = {
        {"programs", Listed::Programs},      {"setups", Listed::Setups},
        {"mods", Listed::Modifications},     {"maps", Listed::Maps},
        {"scripts", Listed::Scripts},        {"servers", Listed::Servers},
        {"profiles", Listed::VideoProfiles},
    };
    ASSERT_EQ(AllListWords().size(), listed.size());
    for (const auto& [word, kind] : listed) {
        const Result<Command> command = ReadCommand({"--list", word});
        ASSERT_TRUE(command.Ok()) << word;
        EXPECT_EQ(command.Value.What, Verb::List);
        EXPECT_EQ(command.Value.Kind, kind) << word;
    }
}

TEST(CommandWords, NoWordsOpenTheWindow) {
    const Result<Command> command = ReadCommand({});
    ASSERT_TRUE(command.Ok());
    EXPECT_EQ(command.Value.What, Verb::OpenWindow);
    EXPECT_EQ(command.Value.Subject, "");
}

TEST(CommandWords, AFileOrAnAddressOpensTheWindowWithIt) {
    for (const Text word : {"qw://quake.example:27500", "my map.bsp", "-"}) {
        const Result<Command> command = ReadCommand({word});
        ASSERT_TRUE(command.Ok()) << word;
        EXPECT_EQ(command.Value.What, Verb::OpenWindow);
        EXPECT_EQ(command.Value.Subject, word);
    }
}

TEST(CommandWords, ALaunchTakesAllThatItsOptionsSay) {
    const Result<Command> command = ReadCommand({"--launch", "Quake", "--mod", "CTF", "--map=DM4", "--script",
                                                 "night.cfg", "--profile", "Optimize for Speed", "--dry-run"});
    ASSERT_TRUE(command.Ok()) << command.Fault.Text;
    EXPECT_EQ(command.Value.What, Verb::Launch);
    EXPECT_EQ(command.Value.Title, "Quake");
    EXPECT_EQ(command.Value.Setup, std::nullopt);
    EXPECT_EQ(command.Value.Modification, "CTF");
    EXPECT_EQ(command.Value.Map, "DM4");
    EXPECT_EQ(command.Value.Script, "night.cfg");
    EXPECT_EQ(command.Value.VideoProfile, "Optimize for Speed");
    EXPECT_TRUE(command.Value.DryRun);
}

TEST(CommandWords, ALaunchTakesAServer) {
    const Result<Command> command = ReadCommand({"--server", "10.0.0.1:26000", "--launch", "Quake"});
    ASSERT_TRUE(command.Ok()) << command.Fault.Text;
    EXPECT_EQ(command.Value.Server, "10.0.0.1:26000");
}

TEST(CommandWords, ASetupIsALaunch) {
    const Result<Command> command = ReadCommand({"--map", "DM4", "--setup", "Evening"});
    ASSERT_TRUE(command.Ok());
    EXPECT_EQ(command.Value.What, Verb::Launch);
    EXPECT_EQ(command.Value.Setup, "Evening");
    EXPECT_EQ(command.Value.Map, "DM4");
}

TEST(CommandWords, AListMayNameTheGameWhoseListsAreMeantInEitherOrder) {
    for (const std::vector<Text>& words : {std::vector<Text>{"--launch", "Quake", "--list", "maps"},
                                           std::vector<Text>{"--list", "maps", "--launch", "Quake"}}) {
        const Result<Command> command = ReadCommand(words);
        ASSERT_TRUE(command.Ok()) << command.Fault.Text;
        EXPECT_EQ(command.Value.What, Verb::List);
        EXPECT_EQ(command.Value.Title, "Quake");
        EXPECT_EQ(command.Value.Kind, Listed::Maps);
    }
}

TEST(CommandWords, ACheckMayNameTheProgramWhoseConsoleIsMeantInEitherOrder) {
    for (const std::vector<Text>& words : {std::vector<Text>{"--launch", "Quake", "--check", "my.cfg"},
                                           std::vector<Text>{"--check", "my.cfg", "--launch", "Quake"}}) {
        const Result<Command> command = ReadCommand(words);
        ASSERT_TRUE(command.Ok()) << command.Fault.Text;
        EXPECT_EQ(command.Value.What, Verb::Check);
        EXPECT_EQ(command.Value.Subject, "my.cfg");
        EXPECT_EQ(command.Value.Title, "Quake");
    }
}

TEST(CommandWords, AListWithoutItsKindIsOfPrograms) {
    const Result<Command> command = ReadCommand({"--list"});
    ASSERT_TRUE(command.Ok()) << command.Fault.Text;
    EXPECT_EQ(command.Value.Kind, Listed::Programs);
}

TEST(CommandWords, LetterCaseHasNoMeaningInLongWords) {
    const Result<Command> launch = ReadCommand({"--LAUNCH", "Quake", "--Map=DM4"});
    ASSERT_TRUE(launch.Ok()) << launch.Fault.Text;
    EXPECT_EQ(launch.Value.Title, "Quake");
    EXPECT_EQ(launch.Value.Map, "DM4");
    EXPECT_EQ(ReadCommand({"--List", "MAPS"}).Value.Kind, Listed::Maps);
    EXPECT_FALSE(ReadCommand({"--launch", "--MAP", "DM4"}).Ok());
    EXPECT_FALSE(ReadCommand({"-v"}).Ok()) << "-V is the version";
}

TEST(CommandWords, ShortWordsOfHelpAndVersion) {
    for (const Text word : {"-h", "-?", "/?", "--help"}) {
        EXPECT_EQ(ReadCommand({word}).Value.What, Verb::Help) << word;
    }
    EXPECT_EQ(ReadCommand({"-V"}).Value.What, Verb::Version);
}

TEST(CommandWords, ANameMayBeginWithADashBehindItsOption) {
    const Result<Command> command = ReadCommand({"--launch", "-=Clan=-", "--map", "-dm1"});
    ASSERT_TRUE(command.Ok()) << command.Fault.Text;
    EXPECT_EQ(command.Value.Title, "-=Clan=-");
    EXPECT_EQ(command.Value.Map, "-dm1");
}

TEST(CommandWords, ALauncherNamesItsSetupWhateverThatIsCalled) {
    const Result<Command> command = ReadCommand({"--setup=--help", "--tell"});
    ASSERT_TRUE(command.Ok()) << command.Fault.Text;
    EXPECT_EQ(command.Value.What, Verb::Launch);
    EXPECT_EQ(command.Value.Setup, "--help");
    EXPECT_TRUE(command.Value.Tell);
}

TEST(CommandWords, TwoDashesEndTheOptions) {
    const Result<Command> command = ReadCommand({"--", "--launch"});
    ASSERT_TRUE(command.Ok());
    EXPECT_EQ(command.Value.What, Verb::OpenWindow);
    EXPECT_EQ(command.Value.Subject, "--launch");
}

struct Refused {
    std::vector<Text> Words;
    Text Says;
};

TEST(CommandWords, EachFaultSaysWhatIsWrongAndWhatMayBeMeant) {
    const std::vector<Refused> refused = {
        {{"--exp", "all.lv3d"}, "There is no option \"--exp\". Did you mean \"--export\"?"},
        {{"--list", "--launch", "Quake"},
         "--list and --launch do not go together, but for the lists of a game: --list maps, say."},
        {{"--setup", "Duel", "--list", "programs"},
         "--list and --setup do not go together, but for the lists of a game: --list maps, say."},
        {{"--list", "setups", "--mod", "ctf"},
         "--list and --mod do not go together, but for the lists of a game: --list maps, say."},
        {{"--check", "my.cfg", "--setup", "Duel"}, "--setup and --check do not go together."},
        {{"--check", "my.cfg", "--launch", "Quake", "--mod", "ctf"}, "--mod goes with --launch or --setup."},
        {{"--launch", "Quake", "--LAUNCH", "Quake"}, "--launch stands there twice."},
        {{"--lanch", "Quake"}, "There is no option \"--lanch\". Did you mean \"--launch\"?"},
        {{"--zzzzzzzz"}, "There is no option \"--zzzzzzzz\"."},
        {{"--list", "mapps"}, "There is no list of \"mapps\". Did you mean \"maps\"?"},
        {{"--launch"}, "Behind --launch a word is missing: TITLE."},
        {{"--launch", "--map", "DM4"}, "Behind --launch a word is missing: TITLE."},
        {{"--launch="}, "Behind --launch a word is missing: TITLE."},
        {{"--dry-run=yes", "--launch", "Quake"}, "--dry-run takes no value."},
        {{"--map", "DM4", "--map", "DM6", "--launch", "Q"}, "--map stands there twice."},
        {{"--launch", "Half", "Life"}, "What is \"Life\" for? A title of several words stands in quotes."},
        {{"--map", "DM4"}, "--map goes with --launch or --setup."},
        {{"--list", "maps", "--map", "DM4"}, "--map goes with --launch or --setup."},
        {{"--dry-run"}, "--dry-run goes with --launch or --setup."},
        {{"--check", "a.cfg", "--dry-run"}, "--dry-run goes with --launch or --setup."},
        {{"--tell"}, "--tell goes with --launch or --setup."},
        {{"--tell=me", "--setup", "Evening"}, "--tell takes no value."},
        {{"--launch", "Quake", "--setup", "Evening"}, "--setup and --launch do not go together."},
        {{"--launch", "Quake", "--map", "e1m1", "--server", "localhost"},
         "--map and --server do not go together: a server says itself which map it plays."},
        {{"--setup", "S", "--server", "1.2.3.4", "--map", "start"},
         "--map and --server do not go together: a server says itself which map it plays."},
        {{"--export", "a", "--import", "b"}, "--import and --export do not go together."},
        {{"a.bsp", "b.bsp"}, "One file or address at a time, and \"b.bsp\" is one more."},
        {{"--l\x1B[2Jx"}, "There is no option \"--l?[2Jx\"."},
    };
    for (const Refused& each : refused) {
        const Result<Command> command = ReadCommand(each.Words);
        ASSERT_FALSE(command.Ok()) << each.Says;
        EXPECT_EQ(command.Fault.Text, each.Says);
    }
}

TEST(CommandWords, TheHelpNamesEachOptionAndFitsATerminal) {
    const Text help = HelpText();
    for (const OptionWord& option : AllOptionWords()) {
        EXPECT_NE(help.find(option.Word), Text::npos) << option.Word;
    }
    std::size_t at = 0;
    while (at < help.size()) {
        const std::size_t end = help.find('\n', at);
        ASSERT_NE(end, Text::npos) << "the last line has no end";
        EXPECT_LE(end - at, 80U) << help.substr(at, end - at);
        at = end + 1;
    }
}

}  // namespace
}  // namespace lv
