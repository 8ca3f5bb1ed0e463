#include "commands/asked_instance.h"

#include "commands/run_command.h"
#include "foundation/field_strings.h"
#include "foundation/numbers.h"
#include "launcher/drop/offer_dropped.h"
#include "launcher/start/main_window_load.h"
#include "launcher/window/game_end.h"
#include "launcher/window/window_life.h"

namespace lv {

namespace {

constexpr TextView kEnd = TextView("\0", 1);
constexpr std::size_t kReplyFields = 4;

CommandResult Busy() {
    return {.Code = exit_code::kFailed,
            .Err = "The running Lorvane 3D is busy. Close the windows that are open in it, and try again.\n"};
}

CommandResult NoteOffered(Launcher& window, const Text& word) {
    const bool waits = DialogIsUp(window.run);
    if (!NoteDropped(window, {.Word = word, .Count = 1, .Fault = {}})) {
        return waits ? CommandResult{.Code = exit_code::kFailed,
                                     .Err =
                                         "The running Lorvane 3D has something else to offer as soon as the window "
                                         "that is open in it is closed. Close that first.\n"}
                     : Busy();
    }
    ComeForward(window);
    return {.Out = waits ? "Lorvane 3D offers this as soon as the window that is open in it is closed.\n" : ""};
}

}  // namespace

CommandResult NoAnswer() {
    return {.Code = exit_code::kFailed,
            .Err = "Lorvane 3D is running already, and does not answer. Answer what its window asks, and try again.\n"};
}

void ConnectHandOver(Launcher& launcher) {
    launcher.HandOver = [&launcher](TextView word) {
        const Asked asked = launcher.run.System.Instance->Ask(RequestOf({"--", Text(word)}), kPatienceMs);
        const auto result = asked.Answer ? ResultOf(*asked.Answer) : std::nullopt;
        const CommandResult& told = result ? *result : NoAnswer();
        return told.Code == exit_code::kDone ? Text() : TrimWhite(told.Err);
    };
}

std::vector<Text> WordsForAnother(const Command& command, const std::vector<Text>& words,
                                  const std::function<Text(TextView)>& wholePath) {
    return command.What == Verb::Import ? std::vector<Text>{"--import", wholePath(command.Subject)} : words;
}

Text RequestOf(const std::vector<Text>& words) {
    Text request;
    for (const Text& word : words) {
        request += Join(word, kEnd);
    }
    return request;
}

std::vector<Text> WordsOf(TextView request) {
    std::vector<Text> words;
    while (!request.empty()) {
        const std::size_t end = std::min(request.find('\0'), request.size());
        words.emplace_back(request.substr(0, end));
        request.remove_prefix(std::min(end + 1, request.size()));
    }
    return words;
}

Text ReplyOf(const CommandResult& result) {
    return RequestOf({std::to_string(result.Code), result.Out, result.Err, result.Started});
}

std::optional<CommandResult> ResultOf(TextView reply) {
    const std::vector<Text> fields = WordsOf(reply);
    if (fields.size() != kReplyFields || !reply.ends_with('\0')) {
        return std::nullopt;
    }
    return CommandResult{static_cast<int>(ToIndex(fields[0])), fields[1], fields[2], fields[3], {}};
}

bool IsToBeOffered(const Command& command) {
    return command.What == Verb::OpenWindow && !command.Subject.empty();
}

bool IsForTheWindow(const Command& command) {
    return (command.What == Verb::Launch && !command.DryRun) || command.What == Verb::Import || IsToBeOffered(command);
}

CommandResult DoForAnother(Launcher& window, const CommandPlace& place, TextView request) {
    const Result<Command> command = ReadCommand(WordsOf(request));
    if (!command.Ok()) {
        return NotUnderstood(command.Fault);
    }
    if (!IsForTheWindow(command.Value) || window.LaunchUnderWay || window.run.Ended) {
        return Busy();
    }
    if (IsToBeOffered(command.Value)) {
        return NoteOffered(window, command.Value.Subject);
    }
    const bool isImport = command.Value.What == Verb::Import;
    if (isImport && DialogIsUp(window.run)) {
        return Busy();  // it may show what would be others
    }
    CommandResult result = RunCommand(command.Value, place);
    if (isImport && result.Code == exit_code::kDone) {
        (void)ReloadMainWindow(window);
    }
    if (!result.Started.empty()) {
        if (!DialogIsUp(window.run)) {
            HideForLaunch(window);
        }
        NoteGameStart(window, result.StartedPath);
    }
    return result;
}

}  // namespace lv
