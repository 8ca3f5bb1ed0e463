#include "foundry/document/script_messages.h"

#include <algorithm>
#include <utility>

#include "foundation/bounded_file.h"
#include "foundation/error_lines.h"
#include "foundation/game.h"
#include "foundation/question_box.h"

namespace lv {

std::unique_ptr<RandomAccessFile> OpenScriptFile(Run& run, TextView path) {
    return OpenScriptFile(run, path, run.GameKind == Game::Unreal ? kLargestIni : kLargestScript);
}

std::unique_ptr<RandomAccessFile> OpenScriptFile(Run& run, TextView path, std::uint64_t most) {
    auto file = OpenBounded(run.System.Disk, path, most);
    if (!file.Ok()) {
        AskUser(run, "Script Not Opened",
                Join("Error opening specified script file.", NewLine, NewLine, ErrorLines(file.Fault)));
    }
    return std::move(file.Value);
}

Text EditorCaption(TextView scriptPath) {
    Text shown(scriptPath);
    std::replace(shown.begin(), shown.end(), '\\', '/');
    return Join("Setup Foundry - [", shown, "]");
}

}  // namespace lv
