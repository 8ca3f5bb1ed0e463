// app/words_run.h
//
// What the words of the command line come to, on whatever system.

#pragma once

#include "assets/embedded_texts.h"
#include "commands/asked_instance.h"
#include "commands/run_command.h"
#include "commands/unseen/unseen_launcher.h"
#include "foundry/foundry.h"
#include "platform/single_instance.h"

namespace lv {

/// What the main window is called, from its start on.
constexpr TextView kInstanceCaption = "   Lorvane 3D";

/// A command done on a platform without a window.
inline CommandResult RunFor(Platform& system, const Command& command, std::function<Text(TextView)> pathOfWord) {
    return RunCommand(command, {system, EmbeddedEngines(), std::move(pathOfWord), ConnectFoundry});
}

/// What another start asks of the program whose window this is, and the answer.
inline std::function<std::string(std::string_view)> AnswersOf(Launcher& window) {
    return [&window](std::string_view request) {
        Files& disk = window.run.System.Disk;
        const auto pathOfWord = [&disk](TextView word) { return disk.FromTyped(word); };
        return ReplyOf(
            DoForAnother(window, {window.run.System, EmbeddedEngines(), pathOfWord, ConnectFoundry}, request));
    };
}

/// Nothing if the words ask for the window. `running` is asked ahead of `runHere` for what is the window's.
template <class RunHere>
std::optional<CommandResult> ResultOfWords(const std::vector<Text>& words, SingleInstance& running,
                                           const std::function<Text(TextView)>& wholePath, RunHere runHere) {
    const Result<Command> command = ReadCommand(words);
    if (!command.Ok()) {
        return NotUnderstood(command.Fault);
    }
    if (command.Value.What == Verb::OpenWindow) {
        return std::nullopt;
    }
    if (NeedsNothing(command.Value)) {
        return AnswerAtOnce(command.Value);
    }
    if (IsForTheWindow(command.Value)) {
        const auto reply = running.Ask(RequestOf(WordsForAnother(command.Value, words, wholePath)));
        if (auto result = reply ? ResultOf(*reply) : std::nullopt) {
            return result;
        }
    }
    return runHere(command.Value);
}

}  // namespace lv
