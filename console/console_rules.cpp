#include "console/console_rules.h"

namespace lv {

namespace {

using enum LongLine;
using enum BindWords;
using enum Capitals;
using enum AliasCases;

constexpr CommentRule kSplits = CommentRule::Splits;
constexpr CommentRule kAfterBlank = CommentRule::AfterBlank;
constexpr CommentRule kUnquoted = CommentRule::Unquoted;
constexpr CommentRule kAnywhere = CommentRule::Anywhere;

constexpr unsigned kNone = 0;
constexpr unsigned kUnaliases = has::kUnalias | has::kUnaliasAll;
constexpr unsigned kAllSets = has::kSet | has::kSeta | has::kSetu;

// Sin's and FTE's rows are those of the originals where nobody has looked, and the limits of the words of Ironwail,
// QuakeSpasm and DarkPlaces are what was measured or assumed.
// clang-format off
constexpr ConsoleRules kConsoles[] = {
    // console             name          line  words word  buffer  alias long      comment      own words    controls high   escape return odd    bind    letters  cases       bare   player commands
    {Console::Quake,      "Quake",       1024,  80,  1024,   8192, 31,   Overruns, kSplits,     "{}()':",    true,    true,  false, false, false, One,    OwnKeys, NewestRuns, true,   true,  kNone},
    {Console::QuakeWorld, "QuakeWorld",  1024,  80,  1024,   8192, 31,   Overruns, kSplits,     "",          true,    true,  false, false, false, One,    OwnKeys, NewestRuns, true,   false, kNone},
    {Console::Hexen2,     "Hexen II",    1023,  80,  1024,   8192, 31,   Cut,      kSplits,     "",          true,    false, false, false, false, One,    OwnKeys, NewestRuns, true,   true,  kUnaliases},
    {Console::Quake2,     "Quake II",    1024,  80,   127,   8192, 31,   Overruns, kSplits,     "",          true,    true,  false, false, true,  Joined, OwnKeys, NewestRuns, true,   false, has::kSet},
    {Console::Heretic2,   "Heretic II",  1024,  80,   127,   8192, 31,   Overruns, kSplits,     "",          true,    true,  false, false, true,  Joined, OwnKeys, NewestRuns, true,   false, has::kSet},
    {Console::Sin,        "Sin",         1024,  80,   127,   8192, 31,   Overruns, kSplits,     "",          true,    true,  false, false, true,  Joined, OwnKeys, NewestRuns, true,   false, has::kSet},
    {Console::EzQuake,    "ezQuake",     1023,  80,  1023, 262144, 31,   Cut,      kUnquoted,   "",          false,   false, false, false, false, Joined, Small,   AreOne,     false, false, has::kSet | kUnaliases},
    {Console::Ironwail,   "Ironwail",    1023,  80,  1023, 262144, 31,   Cut,      kAnywhere,   "",          true,    false, false, false, false, One,    OwnKeys, NewestRuns, true,   true,  kUnaliases},
    {Console::DarkPlaces, "DarkPlaces", 16383,  80, 16383, 655360, 31,   Dropped,  kAfterBlank, "",          false,   false, true,  true,  false, One,    Small,   FirstRuns,  true,   true,  has::kSet | has::kSeta | has::kUnalias},
    {Console::Fte,        "FTE",             0, 80,     0,      0, 31,   Cut,      kUnquoted,   "",          false,   false, false, false, false, Joined, Small,   AreOne,     true,   false, has::kSet | has::kSeta | kUnaliases},
    {Console::Yamagi,     "Yamagi",      1023,  80,  1023,  32768, 31,   Cut,      kSplits,     "",          true,    false, false, false, true,  Joined, OwnKeys, NewestRuns, true,   false, has::kSet},
    {Console::Q2Pro,      "Q2PRO",       1023, 256,  1023,      0, 31,   Dropped,  kSplits,     "",          true,    false, false, false, true,  Joined, OwnKeys, NewestRuns, true,   false, kAllSets | has::kUnalias},
    {Console::HalfLife,   "Half-Life",   2046,  80, 32767,  32768, 31,   Dropped,  kAfterBlank, "",          true,    false, true,  false, false, Joined, OwnKeys, FirstRuns,  true,   false, has::kSet | has::kUnalias},
    {Console::Unreal,     "Unreal",          0,  0,     0,      0,  0,   Cut,      kUnquoted,   "",          false,   false, false, true,  false, Joined, Small,   AreOne,     true,   false, kNone},
    {Console::QuakeSpasm, "QuakeSpasm",  1023,  80,  1023, 262144, 31,   Cut,      kSplits,     "",          true,    false, false, false, false, One,    OwnKeys, NewestRuns, true,   true,  kUnaliases},
    {Console::HexenWorld, "HexenWorld",  1023,  80,  1024,   8192, 31,   Cut,      kSplits,     "",          true,    false, false, false, false, One,    OwnKeys, NewestRuns, true,   false, kUnaliases},
};
// clang-format on

}  // namespace

std::span<const ConsoleRules> AllConsoles() {
    return kConsoles;
}

const ConsoleRules& RulesOf(Console console) {
    return kConsoles[static_cast<std::size_t>(console)];
}

Console ConsoleOf(Game game, bool isQuakeWorld) {
    switch (game) {
        case Game::Hexen2:
            return Console::Hexen2;
        case Game::Quake2:
            return Console::Quake2;
        case Game::Unreal:
            return Console::Unreal;
        case Game::Sin:
            return Console::Sin;
        case Game::Heretic2:
            return Console::Heretic2;
        case Game::HalfLife:
            return Console::HalfLife;
        default:
            return isQuakeWorld ? Console::QuakeWorld : Console::Quake;
    }
}

}  // namespace lv
