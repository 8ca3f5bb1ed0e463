// console/files/start_run.h
//
// A game's start, as far as its console goes: which scripts are executed, in order, and who of them sets what last.

#pragma once

#include "console/files/script_finder.h"
#include "console/files/setter_table.h"
#include "console/files/start_order.h"

namespace lv {

constexpr std::size_t kMostRunScripts = 1000;
constexpr std::size_t kDeepestScript = 64;
constexpr std::size_t kMostRunBytes = 16U << 20U;
constexpr std::size_t kMostSetters = 200'000;

struct StartRequest {
    PlayedGame Played;
    std::vector<Text> Commands{};      // of the command line, without their "+": "exec lv_666.qs"
    std::vector<GivenScript> Given{};  // texts in the place of files
    bool RunsLongOnes = false;         // scripts that the console drops for their length too
};

enum class ScriptFate {
    Ran,
    StoodIn,  // not found; the game's own is taken to say as usual
    Missing,
    Loop,  // it is being run already
    TooDeep,
    TooLong,    // for the console's buffer, which drops it
    Unread,     // there, but not read: too large for us, damaged, or locked
    Refused,    // "exec" takes one word
    IsPattern,  // of several scripts, which are not looked for
};

struct RunScript {
    Text Name;   // as "exec" was given it; "the command line" for that
    Text Path;   // the file, or the archive; empty: neither
    Text Inner;  // its name in the archive
    ScriptFate Fate = ScriptFate::Ran;
    std::size_t Depth = 0;  // 0 for those that the engine runs by itself
    std::size_t By = 0;     // who runs it, of this list; kNoScript: the engine
    std::size_t ByLine = 0;
    bool MayLack = false;
};

struct StartRun {
    std::vector<RunScript> Scripts;  // in the order in which they begin
    SetterTable Set;
    std::vector<SearchPlace> Places;
    std::vector<Text> UnreadArchives;
    bool RanCommandLine = false;  // or there is none
    bool IsCutOff = false;        // more was to be run than anybody's game runs
    bool IsSure = true;           // false: nobody has looked at how this console finds its files
};

StartRun RunStart(Files& disk, const StartRequest& request);

}  // namespace lv
