#include "console/files/line_commands.h"

#include "foundation/field_strings.h"

namespace lv {

namespace {

bool IsOption(TextView word) {
    const bool isNumber = word.size() > 1 && ((word[1] >= '0' && word[1] <= '9') || word[1] == '.');
    return word.starts_with('-') && !isNumber;
}

}  // namespace

std::vector<Text> LineCommands(TextView commandLine, Console console) {
    std::vector<Text> commands;
    bool isOpen = false;
    while (!commandLine.empty()) {
        const TextView word = NextQuotedWord(commandLine);
        if (word.empty()) {
            continue;
        }
        if (console == Console::Unreal) {
            commands.emplace_back(word);
        } else if (word.starts_with('+')) {
            commands.emplace_back(word.substr(1));
            isOpen = true;
        } else if (IsOption(word)) {
            isOpen = false;
        } else if (isOpen) {
            commands.back().append(Blank).append(word);
        }
    }
    return commands;
}

}  // namespace lv
