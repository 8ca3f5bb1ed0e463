// console/files/exec_rules.h
//
// How "exec" finds a script and takes it in, a row a console; and what engines of one console do each in its own way.

#pragma once

#include <span>

#include "console/console_rules.h"

namespace lv {

/// What becomes of a name that is not found as it is.
enum class ExecEnding {
    None,
    WithoutPoint,  // ".cfg" is added to a name that has no point
    WhenMissing,   // to any
};

/// Which of a directory's archives with numbers in their names are read, from 0 on.
enum class Numbering {
    UntilGap,
    ToNine,  // gaps are no end
    None,
};

struct ExecRules {
    Console Of = Console::Quake;
    bool LooseFirst = false;   // a directory's files count ahead of those in its archives
    TextView NumberedArchive;  // "%" is the number: "pak%.pak"
    Numbering Numbers = Numbering::UntilGap;
    TextView MoreArchives;    // patterns parted by ";", the later ones ahead; ahead of the numbered ones too
    bool ExactNames = false;  // letter case counts in archives
    TextView MoreBases;       // directories behind the game's base one, parted by ";", the later ones ahead
    ExecEnding Ending = ExecEnding::None;
    bool OneWord = false;     // "exec" with more is refused
    bool Patterns = false;    // "*" and "?" in the name stand for any
    bool EndsScripts = true;  // otherwise a last line that does not end goes on with what follows the "exec"
    bool IsSure = true;       // false: taken from the console's relatives
};

/// In the order of the enumeration.
std::span<const ExecRules> AllExecRules();

const ExecRules& ExecRulesOf(Console console);

/// What an engine reads beside the game's own files.
struct EngineFiles {
    TextView Engine;          // how its name begins
    TextView UserDirectory;   // below the user's home, on Linux: "\.darkplaces"; "%" is the game; empty: none
    TextView OwnArchive;      // beside the base directory; above that one's archives
    TextView Config;          // run in the place of "config.cfg" if it is there
    bool AlsoConfig = false;  // behind it, not in its place
};

/// Those of no engine that nobody has looked at: all empty. The first that fits.
const EngineFiles& FilesOfEngine(TextView engine);
std::span<const EngineFiles> AllEngineFiles();

}  // namespace lv
