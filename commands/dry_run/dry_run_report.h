// commands/dry_run/dry_run_report.h
//
// What a launch would do, in words: of a rehearsal on stand-ins for the disk and for the starting of programs.

#pragma once

#include <vector>

#include "commands/dry_run/missing_parts.h"
#include "commands/dry_run/rehearsed_files.h"
#include "commands/dry_run/rehearsed_programs.h"
#include "launcher/launcher.h"

namespace lv {

/// A launch after its click.
struct Rehearsal {
    RehearsedFiles& Disk;
    const RehearsedPrograms& Programs;
    const RehearsedRegistry& Registry;
    Launcher& Its;
    std::vector<lv::Text> Missing;  // what the launcher does not hold any more, a sentence each
    lv::Text Said;                  // in boxes, on the way
    PathText AsPrinted{};           // how paths are said
};

struct DryRunReport {
    lv::Text Text;
    bool IsMissingSomething = false;  // or the game would not be started
};

DryRunReport ReportOf(const Rehearsal& rehearsal);

}  // namespace lv
