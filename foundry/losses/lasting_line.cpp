#include "foundry/losses/lasting_line.h"

#include "foundation/field_strings.h"
#include "foundry/reading/script_keywords.h"
#include "foundry/reading/script_lines.h"

namespace lv {

namespace {

constexpr TextView kAlias = "alias";
constexpr TextView kComment = "//";
constexpr TextView kHardBlank = "\xA0";      // the reader makes a blank of it
constexpr TextView kPassed = "; ";           // an empty command, which the reader takes for an unknown one
constexpr TextView kPassedComment = "//; ";  // the reader keeps such a line to the letter

Text TakeKeyword(TextView& rest) {
    return LowerCase(StripQuotesView(NextQuotedWord(rest, kScriptBlanks)));
}

/// Whether the reader knows the command, and does with it what it wants.
bool IsTakenByReader(TextView command) {
    if (command.starts_with('[')) {
        return true;
    }
    Text keyword = TakeKeyword(command);
    if (keyword.starts_with(kAlias)) {  // "aliases" too
        return true;
    }
    if (keyword == "set") {
        keyword = TakeKeyword(command);
    }
    return FindKeyword(keyword) != nullptr;
}

}  // namespace

std::optional<LastingLine> LastingLineOf(TextView command, TextView fileLine, Console console) {
    if (console == Console::Unreal) {
        return LastingLine{Text(command)};
    }
    if (!Holds(command, kComment) && !Holds(command, kHardBlank)) {
        return LastingLine{IsTakenByReader(command) ? Join(kPassed, command) : Text(command)};
    }
    if (RulesOf(console).Comment != CommentRule::Splits) {
        return std::nullopt;
    }
    const TextView whole = TrimmedView(fileLine, kScriptBlanks);
    return LastingLine{Join(kPassedComment, whole.empty() ? command : whole), !whole.empty()};
}

}  // namespace lv
