// games/engines/engine_table.h
//
// The engines of today that play the games, read from a table of text: what each takes, refuses and calls otherwise.
// assets/engines.tsv is the table that the program carries, and describes its columns.

#pragma once

#include <cstddef>
#include <vector>

#include "foundation/game.h"
#include "foundation/text.h"

namespace lv {

/// What an engine plays, a bit each.
namespace engine_game {
constexpr unsigned kQuake = 1;
constexpr unsigned kQuakeWorld = 2;
constexpr unsigned kHexen2 = 4;
constexpr unsigned kHexenWorld = 8;
constexpr unsigned kQuake2 = 16;
constexpr unsigned kUnreal = 32;
constexpr unsigned kSin = 64;
constexpr unsigned kHeretic2 = 128;
constexpr unsigned kHalfLife = 256;
}  // namespace engine_game

enum class EngineRole { Client, Server, Both };

/// A way to tell an engine the game's directory.
struct DataWay {
    enum class Sort { WorkingDirectory, Option, Variable, Environment };
    Sort How = Sort::WorkingDirectory;
    Text Word;  // "-basedir", "basedir" of "+set basedir", the environment variable's name
};

/// A switch that an engine must not get. "-*" is every option.
struct RefusedSwitch {
    Text Switch;
    Text Reason;
};

/// A switch that an engine knows under another name. "%" is one word, the same in both.
struct WrittenOtherwise {
    std::vector<Text> From;
    Text To;
};

struct WantedSwitch {
    unsigned Games = 0;
    Text Switch;
};

/// Where an engine that looks for commands in its command line takes one to end.
enum class CommandEnd {
    AnySign,       // at "+" or "-", wherever it stands
    AnyPlus,       // at "+" wherever it stands, at "-" behind a blank
    AfterBlank,    // at "+" or "-" behind a blank
    Argument,      // at an argument that begins with one of them
    ArgumentWord,  // the same, but for a number
    ArgumentPlus,  // at an argument that begins with "+"
    Never,         // it has no commands there
};

enum class SetCommand {
    No,     // "+set name value" is unknown; "+name value" does it
    Yes,    // as any command
    Early,  // read ahead of all other commands, and as arguments
};

struct Engine {
    Text Name;
    std::vector<Text> Programs;  // file names or patterns with "*", in lower case
    unsigned Games = 0;
    EngineRole Role = EngineRole::Client;
    std::vector<DataWay> DataWays;        // the best first; never empty
    bool SharewareNeedsAutoexec = false;  // with shareware data no command of the command line runs
    std::vector<WantedSwitch> Wanted;     // switches without which it plays another game
    std::vector<RefusedSwitch> Refused;
    std::vector<WrittenOtherwise> Otherwise;
    std::size_t LongestLine = 0;    // in characters, the program included; 0: no limit
    std::size_t MostArguments = 0;  // the program included; 0: no limit
    CommandEnd Ends = CommandEnd::AnySign;
    bool KeepsQuotes = false;  // an argument of a command may hold blanks
    SetCommand Set = SetCommand::Yes;
    Text ScriptEnding;           // of the scripts that it executes, ".cfg"; empty: any
    bool HomeOfAccount = false;  // its own directory is the account's, whatever HOME says
    bool RefusesRoot = false;
    bool RefusesRerelease = false;  // cannot use the data of the game's rerelease
    Text StartedAs;                 // a program of its own, as the host says it, that is not to be started itself
    Text StartInstead;              // but this one
    Text WithoutData;               // what it does without the game's data, in words
    Text DebianPackage;
    Text DebianPart;  // of Debian that the package is in; empty: main
    Text HomePage;
    Text Known;  // what the row rests on: "tried", "source", "not tried"
};

struct EngineTable {
    std::vector<Engine> Engines;  // the user's new ones first
    std::vector<Text> Faults;     // of the user's table: "line 7: no such game: qake"
};

constexpr std::size_t kLargestEngineTable = 1U << 20U;
constexpr std::size_t kMostEngineRows = 10'000;
constexpr std::size_t kMostEnginePatterns = 1'000;  // with "*", of one table
constexpr std::size_t kMostEngineFaults = 100;

/// Both as files hold them; an empty text is a table without rows. A row with a fault is left out, and what the shipped
/// table says of that engine stays.
EngineTable ReadEngines(TextView shipped, TextView users);

/// By a program's file name without its directory, in any letter case, with ".exe" or without. A whole name counts
/// ahead of a pattern. Null for what is not known, and for the games' own programs, which games/programs.h knows:
/// "hwcl.exe" is the original, "hwcl" an engine.
const Engine* EngineOf(const EngineTable& table, TextView programFileName);

/// What the game's catalog entries may be played by: Quake's by those of QuakeWorld too.
unsigned EngineGamesOf(Game game);
constexpr unsigned kAllEngineGames = ~0U;
inline bool Plays(const Engine& engine, Game game) {
    return (engine.Games & EngineGamesOf(game)) != 0;
}

}  // namespace lv
