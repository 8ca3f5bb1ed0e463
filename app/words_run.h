// app/words_run.h
//
// What the words of the command line come to, on whatever system.

#pragma once

#include "assets/embedded_texts.h"
#include "commands/asked_instance.h"
#include "commands/run_command.h"
#include "commands/unseen/unseen_launcher.h"
#include "foundation/field_strings.h"
#include "foundry/foundry.h"
#include "launcher/drop/dropped_thing.h"
#include "launcher/drop/file_link.h"
#include "platform/code_page.h"
#include "platform/printed_to.h"
#include "platform/single_instance.h"

namespace lv {

/// What the main window is called, from its start on.
constexpr TextView kInstanceCaption = "   Lorvane 3D";

/// A command done on a platform without a window.
inline CommandResult RunFor(Platform& system, const Command& command, std::function<Text(TextView)> pathOfWord) {
    return RunCommand(command, {system, EmbeddedEngines(), std::move(pathOfWord), ConnectFoundry, true});
}

using PrintTo = Error (*)(PrintedTo where, std::string_view text);

/// Prints it, and gives the code to end with: what nobody can read has not been done, but for a game that runs.
inline int PrintResult(const CommandResult& result, PrintTo print) {
    const Error lost = print(PrintedTo::Output, result.Out);
    (void)print(PrintedTo::Errors, result.Err);
    if (!lost) {
        return result.Code;
    }
    (void)print(PrintedTo::Errors, Join("lorvane3d: What was to be printed is lost: ", lost.Text, ".\n"));
    return result.Code == exit_code::kDone && result.Started.empty() ? exit_code::kFailed : result.Code;
}

/// What another start asks of the program whose window this is, and the answer.
inline std::function<std::string(std::string_view)> AnswersOf(Launcher& window) {
    return [&window](std::string_view request) {
        Files& disk = window.run.System.Disk;
        const auto pathOfWord = [&disk](TextView word) { return disk.FromTyped(word); };
        return ReplyOf(
            DoForAnother(window, {window.run.System, EmbeddedEngines(), pathOfWord, ConnectFoundry, true}, request));
    };
}

/// What a word stands for that the window is to offer: a file is said from the drive on, since the window stands
/// elsewhere; a word that no drive has stays.
inline Text OfferedWord(TextView word, const std::function<Text(TextView)>& pathOfWord, Files& disk) {
    if (const auto host = PathOfFileLink(ToUtf8(word))) {
        const Text linked = disk.FromHost(*host);
        return linked.empty() ? Text(word) : linked;
    }
    const Text path = Holds(word, "://") ? Text() : pathOfWord(word);
    const bool isThere = !path.empty() && (disk.FileExists(path) || disk.DirectoryExists(path));
    return path.empty() || (!isThere && IsServerWord(word)) ? Text(word) : path;
}

struct WordsDone {
    std::optional<CommandResult> Result;  // nothing if the words ask for the window
    Text Offered;                         // by the window
    Text Told;                            // in a window of its own
};

inline WordsDone DoneAs(const Command& command, CommandResult result) {
    Text told = command.Tell && result.Code != exit_code::kDone ? TrimWhite(result.Err) : Text();
    if (!told.empty() && command.Setup && result.Code == exit_code::kNothingCalledSo) {
        told += Join(NewLine, NewLine, "A launcher whose setup has gone can be deleted.");
    }
    return {std::move(result), {}, std::move(told)};
}

/// `running` is asked ahead of `runHere` for what is the window's. `offeredWord` is OfferedWord on this system.
template <class RunHere, class OfferedWordHere>
WordsDone ResultOfWords(const std::vector<Text>& words, SingleInstance& running,
                        const std::function<Text(TextView)>& wholePath, RunHere runHere, OfferedWordHere offeredWord) {
    const Result<Command> command = ReadCommand(words);
    if (!command.Ok()) {
        return {NotUnderstood(command.Fault), {}, {}};
    }
    const bool isOffered = IsToBeOffered(command.Value);
    const Text offered = isOffered ? offeredWord(command.Value.Subject) : Text();
    if (NeedsNothing(command.Value)) {
        return {AnswerAtOnce(command.Value), {}, {}};
    }
    if (IsForTheWindow(command.Value)) {
        const Asked asked = running.Ask(
            RequestOf(isOffered ? std::vector<Text>{"--", offered} : WordsForAnother(command.Value, words, wholePath)),
            isOffered ? kShortPatienceMs : kPatienceMs);
        if (auto result = asked.Answer ? ResultOf(*asked.Answer) : std::nullopt) {
            return DoneAs(command.Value, *std::move(result));
        }
        // The window asks once more, and tells where somebody sees it.
        if (asked.IsRunning && !isOffered) {
            return DoneAs(command.Value, NoAnswer());
        }
    }
    if (command.Value.What == Verb::OpenWindow) {
        return {std::nullopt, offered, {}};
    }
    return DoneAs(command.Value, runHere(command.Value));
}

}  // namespace lv
