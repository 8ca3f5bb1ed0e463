#include "commands/run_command.h"

#include "commands/check_command.h"
#include "commands/launch_command.h"
#include "commands/list_command.h"
#include "commands/transfer_command.h"
#include "foundation/number_format.h"

namespace lv {

namespace {

CommandResult Done(const Command& command, const CommandPlace& place) {
    switch (command.What) {
        case Verb::List:
            return ListRows(command, place);
        case Verb::Launch:
            return LaunchOrRehearse(command, place);
        case Verb::Check:
            return CheckOneScript(command, place);
        case Verb::Export:
            return ExportToFile(command.Subject, place);
        case Verb::Import:
            return ImportFromFile(command.Subject, place);
        case Verb::Help:
        case Verb::Version:
        case Verb::OpenWindow:
            break;
    }
    return AnswerAtOnce(command);
}

}  // namespace

CommandResult RunCommand(const Command& command, const CommandPlace& place) {
    CommandResult result = Done(command, place);
    result.Out = Printed(result.Out);
    result.Err = Printed(result.Err);
    return result;
}

CommandResult NotUnderstood(const Error& fault) {
    return {.Code = exit_code::kNotUnderstood,
            .Err = Printed(Join("lorvane3d: ", fault.Text, NewLine, "\"lorvane3d --help\" shows the words."))};
}

bool NeedsNothing(const Command& command) {
    return command.What == Verb::Help || command.What == Verb::Version;
}

bool OnlyReads(const Command& command) {
    switch (command.What) {
        case Verb::Help:
        case Verb::Version:
        case Verb::List:
        case Verb::Check:
        case Verb::Export:
            return true;
        case Verb::Launch:
            return command.DryRun;
        case Verb::Import:
        case Verb::OpenWindow:
            break;
    }
    return false;
}

CommandResult AnswerAtOnce(const Command& command) {
    return {.Out = command.What == Verb::Help ? HelpText() : Join("Lorvane 3D ", VersionText(), "\n")};
}

}  // namespace lv
