// The batch of a launch: its plan, and its command line's words.

#include "platform/linux/batch_plan.h"

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
}

}  // namespace lv
