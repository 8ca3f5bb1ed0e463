// console/files/command_buffer.h
//
// What a console has still to run: what "exec" and aliases put in stands ahead of the rest.

#pragma once

#include <deque>

#include "console/console_commands.h"
#include "console/files/setter_table.h"

namespace lv {

struct BufferedCommand {
    ConsoleCommand Command;  // its views stay until the next one
    std::size_t Script = 0;
    std::size_t Line = 0;  // of the script, where an alias was called
    Text Alias;            // the first of those that were called there
    int AliasDepth = 0;
};

class CommandBuffer {
  public:
    /// Without `endsScripts` the end of a script whose last line has none goes on with what follows.
    CommandBuffer(const ConsoleRules& rules, bool endsScripts) : rules_(rules), endsScripts_(endsScripts) {}

    /// Behind all, once all is run. It ends its lines.
    void Append(TextView lines, std::size_t script);
    /// What has not ended yet ends now.
    void EndLine();

    void InsertScript(Text text, std::size_t script);
    /// Whole lines of a script, from this one on.
    void InsertLines(Text lines, std::size_t script, std::size_t line);
    void InsertAlias(TextView name, TextView body, const BufferedCommand& caller);

    /// The next command; false once nothing is left.
    bool Next(BufferedCommand& command);

  private:
    struct Part {
        Part(Text text, const ConsoleRules& rules, std::size_t script, std::size_t line)
            : Content(std::move(text)), Reader(Content, rules, line), Script(script), Line(line) {}
        Part(const Part&) = delete;
        Part& operator=(const Part&) = delete;

        Text Content;
        CommandReader Reader;
        Text Tail;  // of a script, that has no end
        std::size_t TailLine = 0;
        std::size_t Script;
        std::size_t Line;
        Text Alias;
        int AliasDepth = 0;
    };

    void PutTailAheadOfTheRest();

    const ConsoleRules& rules_;
    bool endsScripts_;
    std::deque<Part> parts_;  // the one that is being run is the last
    Text open_;               // what has no end yet
    std::size_t openScript_ = 0;
    std::size_t openLine_ = 0;
};

}  // namespace lv
