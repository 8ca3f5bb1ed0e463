#include "launch/launch_names.h"

#include <algorithm>

#include "catalogs/modifications.h"
#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "launch/switch_rules.h"

namespace lv {

namespace {

constexpr std::size_t kLongestShown = 200;

struct NameRow {
    NameKind Kind;
    TextView What;
    TextView Source;
    TextView Help;
};

// clang-format off
constexpr NameRow kNames[] = {
    {NameKind::Executable,    "executable",     "the list of executables",             "Rename the program, and enter it anew."},
    {NameKind::GameDirectory, "game directory", "the path of the executable",          "Rename the directory, and enter the executable anew."},
    {NameKind::Modification,  "modification",   "the directories of the game",         "Rename its directory, or pick another modification."},
    {NameKind::Map,           "map",            "the maps and archives of the game",   "Rename the map, or pick another one."},
    {NameKind::Script,        "player script",  "the list of player scripts",          "Rename the script, or pick another one."},
    {NameKind::Demo,          "demo",           "the list of demos",                   "Rename the demo, or pick another one."},
    {NameKind::Server,        "server",         "the list of servers",                 "Edit the server's address, or pick another server."},
    {NameKind::Password,      "password",       "the list of servers",                 "Edit the server's password, or pick another server."},
};

// What Windows takes for a program when a command names no ending.
constexpr TextView kProgramEndings[] = {".com", ".exe", ".bat", ".cmd", ".vbs", ".vbe",
                                        ".js",  ".jse", ".wsf", ".wsh", ".msc"};
// clang-format on

const NameRow& RowOf(NameKind kind) {
    return *std::ranges::find(kNames, kind, &NameRow::Kind);
}

/// In the game's console.
bool PartsCommands(TextView text) {
    return text.find_first_of("\";") != TextView::npos;
}

using Names = std::vector<LaunchName>;

void AddModification(Names& names, const LaunchSelection& selection, bool isUnreal) {
    const Text mod = selection.Ticked.Has(Option::Game_Chk) && selection.Game ? LowerCase(*selection.Game) : Text();
    if (mod.starts_with(kGameOption)) {  // anything else is an option that the user has typed
        const Text name = DropLeft(mod, kGameOption.size());
        names.push_back({.Kind = NameKind::Modification,
                         .Value = name,
                         .Written = name,
                         .InCommand = !isUnreal,
                         .ByConsole = !isUnreal});
    }
}

void AddServer(Names& names, const LaunchSelection& selection, const LaunchGame& game) {
    if (!selection.Ticked.Has(Option::Server_Chk) || !selection.Server || selection.Ticked.Has(Option::Bench_Chk)) {
        return;
    }
    const auto& [server, password] = ServerOf(*selection.Server);
    const bool isUnreal = game.GameKind == Game::Unreal;
    const bool isHalfLife = game.GameKind == Game::HalfLife;
    names.push_back({.Kind = NameKind::Password,
                     .Value = PasswordAsArgument(password),
                     .Written = password,
                     .InCommand = isHalfLife,
                     .ByConsole = isHalfLife});
    names.push_back({.Kind = NameKind::Server,
                     .Value = server,
                     .Written = server,
                     .InCommand = isUnreal || isHalfLife,
                     .InScript = !isUnreal,
                     .ByConsole = isHalfLife});
}

void AddMap(Names& names, const LaunchSelection& selection, bool isUnreal) {
    if (selection.Ticked.Has(Option::Map_Chk) && selection.Map) {
        const Text name = Join(LowerCase(*selection.Map), isUnreal ? ".unr" : "");
        names.push_back(
            {.Kind = NameKind::Map, .Value = name, .Written = name, .InCommand = isUnreal, .InScript = !isUnreal});
    }
}

void AddScript(Names& names, const LaunchSelection& selection, bool isUnreal) {
    if (!selection.Ticked.Has(Option::Script_Chk) || !selection.Script ||
        selection.Ticked.Has(Option::LaunchQspy_Chk)) {
        return;
    }
    const Text name = Trim(LastPathPart(*selection.Script));
    names.push_back({.Kind = NameKind::Script,
                     .Value = name,
                     .Written = QuotedIfBlank(name),
                     .InCommand = isUnreal,
                     .InScript = !isUnreal});
}

/// A demo's record is a console command; its name stands behind the command's word. A word that is none is named with
/// the rest.
void AddDemo(Names& names, const LaunchSelection& selection, bool isUnreal) {
    if (selection.Ticked.Has(Option::Demo_Chk) && selection.Demo) {
        const Text& command = *selection.Demo;
        const std::size_t blank = std::min(command.find(' '), command.size());
        const TextView word = TextView(command).substr(0, blank);
        const bool isWord = blank < command.size() && ReadsAsOneWord(word, LineReader::kNobody) && !PartsCommands(word);
        const Text name = isWord ? Trim(command.substr(blank)) : command;
        names.push_back({.Kind = NameKind::Demo, .Value = name, .Written = name, .InScript = !isUnreal});
    }
}

/// Who reads the name first, of those who might take it for more than text.
LineReader ReaderOfName(const LaunchName& name, LineReader reader) {
    if (reader != LineReader::kCommandProcessor && reader != LineReader::kBatch) {
        return name.InCommand ? reader : LineReader::kNobody;
    }
    const bool isParameter = name.InCommand && name.Kind != NameKind::Executable;
    return isParameter ? reader : LineReader::kCommandProcessor;
}

/// Who would misread the name; nothing if nobody would.
std::optional<TextView> Misreader(const LaunchName& name, LineReader reader) {
    if (!ReadsAsOneWord(name.Value, LineReader::kNobody)) {
        return "A command line";
    }
    if (name.InScript && PartsCommands(name.Value)) {
        return "The game's console";
    }
    const bool isDirectory = name.Kind == NameKind::GameDirectory;
    if (isDirectory && reader == LineReader::kDosShell && Holds(name.Value, DoubleQuote)) {
        return "DOS's shell";  // it is mounted within quotes
    }
    // What "%" makes of a directory is none, and the game starts in the right one all the same.
    const Text written = isDirectory ? ReplaceText(name.Written, "%", "_") : name.Written;
    const LineReader first = ReaderOfName(name, reader);
    if (ReadsAsOneWord(written, first)) {
        return std::nullopt;
    }
    return first == LineReader::kDosShell ? "DOS's shell" : "The command processor";
}

/// On one line, and no longer than a box is wide.
Text Shown(TextView text) {
    Text shown(text.substr(0, kLongestShown));
    std::replace_if(
        shown.begin(), shown.end(), [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }, '?');
    return text.size() > kLongestShown ? shown + "..." : shown;
}

/// What it is called, and where it comes from.
Text Introduce(const LaunchName& name) {
    const NameRow& row = RowOf(name.Kind);
    return Join("The ", row.What, Blank, DoubleQuote, Shown(name.Value), DoubleQuote, " comes from ", row.Source, ".");
}

}  // namespace

std::vector<LaunchName> NamesOf(const LaunchSelection& selection, const LaunchGame& game) {
    const bool isUnreal = game.GameKind == Game::Unreal;
    Names names;
    const Text directory = QuotedIfBlank(game.DefaultGameDirectory);
    names.push_back({.Kind = NameKind::GameDirectory, .Value = game.DefaultGameDirectory, .Written = directory});
    const Text executable = ExecutableName(selection);
    names.push_back({.Kind = NameKind::Executable, .Value = executable, .Written = executable, .InCommand = true});
    if (isUnreal) {
        AddServer(names, selection, game);  // right behind the executable
    }
    AddModification(names, selection, isUnreal);
    AddMap(names, selection, isUnreal);
    AddScript(names, selection, isUnreal);
    if (!isUnreal) {
        AddServer(names, selection, game);
    }
    AddDemo(names, selection, isUnreal);
    std::erase_if(names, [](const LaunchName& name) { return name.Written.empty(); });
    return names;
}

std::optional<Text> MisreadName(const std::vector<LaunchName>& names, LineReader reader) {
    for (const LaunchName& name : names) {
        if (const std::optional<TextView> misreader = Misreader(name, reader)) {
            return Join("Nothing was written, and nothing was started.", NewLine, NewLine, Introduce(name), NewLine,
                        *misreader, " would not read it as one word of text.", NewLine, NewLine, RowOf(name.Kind).Help);
        }
    }
    return std::nullopt;
}

std::optional<Text> CommandQuestion(const std::vector<LaunchName>& names) {
    for (const LaunchName& name : names) {
        const bool isSwitch = name.InCommand && name.Kind != NameKind::Executable && name.Value.starts_with('-');
        if (isSwitch || (name.ByConsole && Holds(name.Value, "+"))) {
            return Join(Introduce(name), NewLine,
                        isSwitch ? "Many games take what begins with a \"-\" for an option of their own."
                                 : "Many games carry out what stands behind a \"+\" as a command of their own.",
                        NewLine, NewLine, "Start it only if that may happen.");
        }
    }
    return std::nullopt;
}

std::vector<Text> ConnectPrograms(const std::vector<LaunchName>& names, LineReader reader) {
    std::vector<Text> files;
    const bool broken = std::ranges::any_of(
        names, [](const LaunchName& name) { return name.Kind == NameKind::Password && name.InCommand; });
    if (broken && (reader == LineReader::kCommandProcessor || reader == LineReader::kBatch)) {
        for (const TextView ending : kProgramEndings) {
            files.push_back(Join("connect", ending));
        }
    }
    return files;
}

Text ConnectProgramText(TextView path) {
    return Join("Nothing was written, and nothing was started.", NewLine, NewLine, "The file ", DoubleQuote, path,
                DoubleQuote, " lies in the game's directory.", NewLine,
                "The command processor would run it behind the game, for the server's password breaks the command "
                "line.",
                NewLine, NewLine, "Remove the file, or the password of the server.");
}

}  // namespace lv
