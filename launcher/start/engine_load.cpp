#include "launcher/start/engine_load.h"

#include <algorithm>

#include "foundation/bounded_file.h"
#include "foundation/question_box.h"
#include "games/engines/engine_seats.h"

namespace lv {

namespace {

constexpr std::size_t kMostShown = 10;

Text PathOfUsersTable(Run& run) {
    const Text directory = run.System.Places != nullptr ? run.System.Places->ConfigDirectory() : Text();
    return directory.empty() ? Text() : Join(directory, "\\lorvane3d\\engines.tsv");
}

// The table is the user's, and may be anything.
Text Printable(Text text) {
    std::ranges::replace_if(
        text, [](char c) { return (static_cast<unsigned char>(c) < 0x20 && c != '\t') || c == 0x7F; }, '?');
    return text;
}

void TellFaults(Run& run, const Text& path, const std::vector<Text>& faults) {
    Text list;
    for (std::size_t i = 0; i < faults.size() && i < kMostShown; ++i) {
        list += Join(TabChar, Printable(faults[i]), NewLine);
    }
    if (faults.size() > kMostShown) {
        list += Join(TabChar, "and ", std::to_string(faults.size() - kMostShown), " more", NewLine);
    }
    AskUser(run, "Table of Engines",
            Join("These lines of your own table of engines were left out:", NewLine, NewLine, TabChar, path, NewLine,
                 NewLine, list));
}

}  // namespace

void LoadEngines(Launcher& launcher) {
    Run& run = launcher.run;
    Text users;
    const Text path = PathOfUsersTable(run);
    std::vector<Text> faults;
    if (!path.empty() && run.System.Disk.FileExists(path)) {
        Result<Text> read = ReadBounded(run.System.Disk, path, kLargestEngineTable);
        if (read.Ok()) {
            users = std::move(read.Value);
        } else {
            faults.push_back(read.Fault.Text);
        }
    }
    launcher.Engines = ReadEngines(launcher.ShippedEngines, users);
    faults.insert(faults.end(), launcher.Engines.Faults.begin(), launcher.Engines.Faults.end());
    if (!faults.empty()) {
        TellFaults(run, path, faults);
    }
    RestoreEngineSeats(run);
}

}  // namespace lv
