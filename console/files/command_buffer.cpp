#include "console/files/command_buffer.h"

#include <algorithm>
#include <utility>

namespace lv {

void CommandBuffer::Append(TextView lines, std::size_t script) {
    const bool goesOn = !open_.empty();
    Text text = std::exchange(open_, Text()).append(lines);
    parts_.emplace_back(std::move(text), rules_, goesOn ? openScript_ : script, goesOn ? openLine_ : 1);
}

void CommandBuffer::EndLine() {
    if (!open_.empty()) {
        Append("\n", kNoScript);
    }
}

void CommandBuffer::InsertScript(Text text, std::size_t script) {
    text.resize(std::min(text.find('\0'), text.size()));
    Text tail = endsScripts_ ? Text() : Text(UnendedCommand(text, rules_));
    text.resize(text.size() - tail.size());
    tail.resize(tail.find_first_not_of(" \t\r") == Text::npos ? 0 : tail.size());
    const auto line = static_cast<std::size_t>(tail.empty() ? 0 : 1 + std::ranges::count(text, '\n'));
    Part& part = parts_.emplace_back(std::move(text), rules_, script, 1);
    part.Tail = std::move(tail);
    part.TailLine = line;
}

void CommandBuffer::InsertLines(Text lines, std::size_t script, std::size_t line) {
    parts_.emplace_back(std::move(lines), rules_, script, line);
}

void CommandBuffer::InsertAlias(TextView name, TextView body, const BufferedCommand& caller) {
    Part& part = parts_.emplace_back(Join(body, "\n"), rules_, caller.Script, caller.Line);
    part.Alias = caller.Alias.empty() ? Text(name) : caller.Alias;
    part.AliasDepth = caller.AliasDepth + 1;
}

/// The last part has been run.
void CommandBuffer::PutTailAheadOfTheRest() {
    Text line = std::move(parts_.back().Tail);
    const std::size_t script = parts_.back().Script;
    const std::size_t number = parts_.back().TailLine;
    parts_.pop_back();
    while (!parts_.empty() && !line.ends_with('\n')) {
        Part& part = parts_.back();
        line += part.Reader.TakeLine();
        if (!line.ends_with('\n')) {
            line += part.Tail;
            part.Tail.clear();
        }
        if (part.Reader.IsAtEnd() && part.Tail.empty()) {
            parts_.pop_back();
        }
    }
    if (line.ends_with('\n')) {
        InsertLines(std::move(line), script, number);
    } else {
        open_ = std::move(line);
        openScript_ = script;
        openLine_ = number;
    }
}

bool CommandBuffer::Next(BufferedCommand& command) {
    while (!parts_.empty()) {
        Part& part = parts_.back();
        if (part.Reader.Next(command.Command)) {
            command.Script = part.Script;
            command.Alias = part.Alias;
            command.AliasDepth = part.AliasDepth;
            command.Line = part.AliasDepth > 0 ? part.Line : command.Command.Line;
            return true;
        }
        if (part.Tail.empty()) {
            parts_.pop_back();
        } else {
            PutTailAheadOfTheRest();
        }
    }
    return false;
}

}  // namespace lv
