#include "launcher/drop/dropped_thing.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "foundation/field_strings.h"
#include "foundation/path_fault.h"
#include "foundation/shown_name.h"
#include "foundation/utf16_text.h"
#include "games/games.h"

namespace lv {

namespace {

using namespace std::string_view_literals;
using enum DroppedKind;

constexpr std::size_t kLookedAt = 512;  // bytes
constexpr std::size_t kMostGames = 7;

using GameList = std::array<Game, kMostGames>;  // up to the first None

struct KindRow {
    TextView Ending;  // with its point, in lower case; empty: any name
    TextView Start;   // of the file; empty: anything
    DroppedKind Kind;
    GameList Games{};
};

// The first row counts whose ending the name has and whose bytes the file begins with. A row of no kind has a reason.
// clang-format off
constexpr KindRow kRows[] = {
    {".pak",  "PACK"sv,             Archive,  {Game::Quake, Game::Hexen2, Game::Quake2, Game::Heretic2, Game::HalfLife}},
    {".sin",  "SPAK"sv,             Archive,  {Game::Sin}},
    {".pk3",  "PK\x03\x04"sv,       Archive,  {Game::Quake, Game::Hexen2, Game::Quake2}},
    {".pk2",  "PK\x03\x04"sv,       Archive,  {Game::Quake2}},
    {".pkz",  "PK\x03\x04"sv,       Archive,  {Game::Quake2}},
    {".bsp",  "\x1D\0\0\0"sv,       Map,      {Game::Quake, Game::Hexen2}},
    {".bsp",  "BSP2"sv,             Map,      {Game::Quake, Game::Hexen2}},
    {".bsp",  "2PSB"sv,             Map,      {Game::Quake, Game::Hexen2}},
    {".bsp",  "\x1E\0\0\0"sv,       Map,      {Game::HalfLife}},
    {".bsp",  "IBSP"sv,             Map,      {Game::Quake2, Game::Heretic2}},
    {".bsp",  "RBSP"sv,             Map,      {Game::Sin}},
    {".unr",  "\xC1\x83\x2A\x9E"sv, Map,      {Game::Unreal}},
    {".cfg",  ""sv,                 Script,   {Game::Quake, Game::Hexen2, Game::Quake2, Game::Sin, Game::Heretic2, Game::HalfLife}},
    {".qs",   ""sv,                 Script,   {Game::Quake}},
    {".hs",   ""sv,                 Script,   {Game::Hexen2}},
    {".q2s",  ""sv,                 Script,   {Game::Quake2}},
    {".sns",  ""sv,                 Script,   {Game::Sin}},
    {".ini",  ""sv,                 Script,   {Game::Unreal}},
    {".exe",  "MZ"sv,               Program,  {}},
    {".com",  ""sv,                 Program,  {}},
    {".bat",  ""sv,                 Program,  {}},
    {".cmd",  ""sv,                 Program,  {}},
    {".lv3d", "Lorvane 3D "sv,      Settings, {}},
    {".zip",  ""sv,                 Unknown,  {}},
};

// Of systems whose programs have no ending of their own.
constexpr KindRow kHostRows[] = {
    {"", "\x7F" "ELF"sv, Program, {}},
    {"", "#!"sv,         Program, {}},
};
// clang-format on

constexpr TextView kCom = ".com";  // hosts are called so too

bool HasEnding(TextView name, TextView ending) {
    return name.size() > ending.size() && SameText(name.substr(name.size() - ending.size()), ending);
}

bool HasEndingOfFile(TextView name) {
    return std::ranges::any_of(kRows, [&](const KindRow& row) { return HasEnding(name, row.Ending); });
}

const KindRow* RowOf(TextView name, TextView start, bool hostPrograms) {
    const auto fits = [&](const KindRow& row) { return HasEnding(name, row.Ending) && start.starts_with(row.Start); };
    if (const auto* row = std::ranges::find_if(kRows, fits); row != std::end(kRows)) {
        return row;
    }
    if (!hostPrograms || HasEndingOfFile(name)) {
        return nullptr;
    }
    const auto* row =
        std::ranges::find_if(kHostRows, [&](const KindRow& each) { return start.starts_with(each.Start); });
    return row != std::end(kHostRows) ? row : nullptr;
}

Text WhyUnknown(TextView name) {
    if (HasEnding(name, ".zip")) {
        return "An archive of that kind is unpacked first: what lies in it can then be dropped.";
    }
    return HasEndingOfFile(name) ? "What is in it is not what its name says." : "";
}

DroppedThing Unreadable(TextView path, const Error& failed) {
    DroppedThing thing;
    thing.Path = Text(path);
    thing.Why = Join(Shown(failed.Text), ".");
    return thing;
}

DroppedThing ThingAt(Files& disk, TextView path) {
    DroppedThing thing;
    thing.Path = Text(path);
    if (disk.DirectoryExists(path)) {
        thing.Kind = Directory;
        return thing;
    }
    const auto file = disk.Open(path);
    if (!file.Ok()) {
        return Unreadable(path, FaultAt(disk, path, file.Fault));
    }
    const auto start = file.Value->Read(0, kLookedAt);
    if (!start.Ok()) {
        return Unreadable(path, FaultAt(disk, path, start.Fault));
    }
    const Text name = LastPathPart(path);
    const KindRow* const row = RowOf(name, start.Value, disk.StandIn("", ""));
    if (row == nullptr || row->Kind == Unknown) {
        thing.Why = WhyUnknown(name);
        return thing;
    }
    if (row->Kind == Script && IsUtf16(start.Value)) {
        return Unreadable(path, Utf16Fault(path));
    }
    thing.Kind = row->Kind;
    thing.IsZip = row->Kind == Archive && row->Start.starts_with("PK");
    std::ranges::copy_if(row->Games, std::back_inserter(thing.Games), [](Game game) { return game != Game::None; });
    return thing;
}

Text WithoutEnd(TextView path) {
    while (path.size() > 3 && path.ends_with('\\')) {
        path.remove_suffix(1);
    }
    return Text(path);
}

}  // namespace

bool IsServerWord(TextView word) {
    if (word.size() > kLongestDroppedWord) {
        return false;
    }
    if (ReadServerLink(word)) {
        return true;
    }
    const bool isDotted = word.find_first_of(".:") != TextView::npos;
    return isDotted && (!HasEndingOfFile(word) || HasEnding(word, kCom)) && ReadServerAddress(word).Ok();
}

DroppedThing ThingOf(Files& disk, TextView word) {
    if (word.size() > kLongestDroppedWord) {
        return Unreadable(word.substr(0, kLongestDroppedWord), {error::kInvalidCall, "That is too long for a name"});
    }
    DroppedThing thing;
    thing.Path = Text(word);
    if (const auto link = ReadServerLink(word)) {
        thing.Kind = Server;
        thing.Server = *link;
        return thing;
    }
    if (StartsWithText(word, "file:")) {
        thing.Why = "That link names no file of this machine. One looks like file:///home/me/dm3.bsp.";
        return thing;
    }
    if (Holds(word, "://")) {
        thing.Why = "That is no address of a game's server. One looks like qw://quake.example.com:27500.";
        return thing;
    }
    if (IsServerWord(word) && !disk.FileExists(word) && !disk.DirectoryExists(word)) {
        thing.Kind = Server;
        thing.Server.Address = ReadServerAddress(word).Value;
        return thing;
    }
    return ThingAt(disk, WithoutEnd(word));
}

TextView NameOf(DroppedKind kind) {
    switch (kind) {
        case Archive:
            return "archive";
        case Map:
            return "start map";
        case Script:
            return "script";
        case Program:
            return "program";
        case Server:
            return "server's address";
        case Settings:
            return "file of settings";
        case Directory:
            return "directory";
        case Unknown:
            break;
    }
    return "file";
}

}  // namespace lv
