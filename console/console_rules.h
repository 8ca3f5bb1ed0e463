// console/console_rules.h
//
// How the games' consoles read a script, a row a console: limits, quotes, comments, and what their commands take.

#pragma once

#include <cstddef>
#include <span>

#include "foundation/game.h"

namespace lv {

enum class Console {
    Quake,
    QuakeWorld,
    Hexen2,
    Quake2,
    Heretic2,
    Sin,
    EzQuake,
    Ironwail,  // and the others that descend from QuakeSpasm
    DarkPlaces,
    Fte,
    Yamagi,
    Q2Pro,
    HalfLife,  // as Xash3D reads it
    Unreal,    // no console's script but an ini
    QuakeSpasm,
    HexenWorld,
};

/// What becomes of a line that is longer than the console's.
enum class LongLine {
    Overruns,  // nobody can say
    Cut,       // its rest is nothing
    Dropped,   // all of it is
};

/// Where "//" keeps a ";" behind it from ending the command. In all consoles it ends a command's words where a word
/// would begin.
enum class CommentRule {
    Splits,      // nowhere: what follows the ";" runs
    AfterBlank,  // behind a blank or at a command's start, outside quotes
    Unquoted,    // anywhere outside quotes
    Anywhere,    // in quotes too
};

enum class BindWords {
    One,     // more are refused
    Joined,  // by blanks
};

enum class Capitals {
    OwnKeys,  // "A" is a key that no keyboard sends
    Small,    // "A" is "a"
};

/// Aliases whose names differ in letter case alone: a call in any case runs one of them.
enum class AliasCases {
    NewestRuns,  // the one that was made last
    FirstRuns,   // the first one by the bytes of its name, capitals ahead of small letters
    AreOne,
};

/// The commands that make, mark and remove what a script sets, a bit each.
namespace has {
constexpr unsigned kSet = 1;
constexpr unsigned kSeta = 2;
constexpr unsigned kSetu = 4;  // and "sets"
constexpr unsigned kUnalias = 8;
constexpr unsigned kUnaliasAll = 16;
}  // namespace has

struct ConsoleRules {
    Console Id = Console::Quake;
    TextView Name;
    // Bytes, words, bytes, bytes, bytes. 0: no limit is known.
    std::size_t Line = 0;
    std::size_t Words = 0;
    std::size_t Word = 0;
    std::size_t Buffer = 0;  // a script that is longer is dropped whole
    std::size_t AliasName = 0;
    LongLine Long = LongLine::Cut;
    CommentRule Comment = CommentRule::Splits;
    TextView OwnWords;              // each is a word of its own, outside quotes
    bool EveryControlParts = true;  // all bytes up to the blank part words, not only blank, tab, CR and LF
    bool HighBytesPart = false;     // bytes from 128 on part words, outside quotes
    bool Escapes = false;           // \" and \\ in quotes
    bool ReturnEnds = false;        // a CR ends a line by itself
    bool OddQuoteDrops = false;     // a command with a quote that does not close is dropped
    BindWords Bind = BindWords::One;
    Capitals Letters = Capitals::OwnKeys;
    AliasCases Cases = AliasCases::NewestRuns;
    bool BareAliasEmpties = true;  // "alias NAME" stores an empty one, otherwise it prints
    bool OldPlayer = false;        // "name" and "color" are commands that set _cl_name and _cl_color
    unsigned Has = 0;
};

/// In the order of the enumeration.
std::span<const ConsoleRules> AllConsoles();

const ConsoleRules& RulesOf(Console console);

/// The console of the game as it was sold.
Console ConsoleOf(Game game, bool isQuakeWorld);

}  // namespace lv
