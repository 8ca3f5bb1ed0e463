// The batch of a launch: its plan, and its command line's words.

#include "platform/starting/batch_plan.h"

#include <algorithm>

#include "tests/fuzz/readers.h"

namespace lv {

void FuzzBatchPlan(TextView input) {
    std::size_t length = 0;
    for (const BatchLine& line : ReadBatchLines(input)) {
        MustHold(line.Text.find('\n') == std::string::npos, "a line has no line end in it");
        length += line.Text.size();
    }
    MustHold(length <= input.size(), "lines hold what the batch holds");
    const BatchPlan plan = ParseBatch(input);
    for (const auto& [name, value] : plan.environment) {
        MustHold(name.find('=') == std::string::npos, "a variable's name ends at its value");
        MustHold(value.size() < input.size(), "a value stands in the batch");
    }
    MustHold(plan.drive.empty() || (plan.drive.size() == 2 && plan.drive[1] == ':'), "a drive is a letter and a colon");
    std::size_t letters = 0;
    for (const std::string& word : SplitArguments(plan.command)) {
        letters += word.size();
    }
    MustHold(letters <= plan.command.size(), "words hold what the command holds");
    (void)SplitArguments(input);
    // Any stretch of the batch may be said to be a word.
    const std::size_t at = input.size() / 2;
    const GivenWord word{at, std::string(input.substr(at, 5)), "one argument"};
    const BatchPlan given =
        ParseBatch(input, {word, {at + 7, std::string(input.substr(std::min(at + 7, input.size()), 3)), "another"}});
    MustHold(given.command == plan.command, "what a word is does not change the command");
    for (const GivenWord& each : given.given) {
        MustHold(std::string_view(given.command).substr(each.At).starts_with(each.Written),
                 "a word is where it is said to be");
    }
    MustHold(SplitArguments(given.command, given.given).size() >= given.given.size(), "each word is an argument");
}

}  // namespace lv
