// platform/processes.h
//
// Starting other programs. A started program outlives this one, and nothing waits for it. How the last game ended can
// be asked where the system tells.

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/command_text.h"
#include "platform/error.h"

namespace lv {

class Files;

/// One argument of a batch's command that is no text of the user's: the name of a directory, a map, a server.
struct GivenWord {
    std::size_t At = 0;       // where it begins, its option included: bytes from the front of the text that holds it
    std::string Written;      // as it stands there
    std::string Argument;     // what the program is to get
    std::string Option = {};  // what stands right before it, in both: "INI="
};

/// What the writer of a batch knows of its command, and the command's text alone does not tell.
struct BatchCommand {
    std::string Program;           // the program's file name as it stands in the command; empty: looked for there
    std::vector<GivenWord> Given;  // in the command's order; their places are counted in the batch
};

/// How a game's program ended: the one that was started, whatever it has started itself.
struct GameEnd {
    int Code = 0;            // that it left
    int Signal = 0;          // of the system, that ended it; 0: none
    double Seconds = 0;      // that it ran
    bool OthersRun = false;  // programs that it has started went on, as behind a wrapper that hands over to the game
    std::string LastLines = {};  // the end of what it printed, whole lines parted by CR LF, without control characters
};

/// What StartBatch would start. Text is code page 1252, for people.
struct StartPlan {
    std::vector<std::string> Words;        // the program and its arguments
    std::string Directory;                 // as the host says it
    std::vector<std::string> Environment;  // "NAME=value": what the program gets beside this one's own
};

class Processes {
  public:
    virtual ~Processes() = default;

    /// What would read the command of a batch in `directory` before its program does. `program` is the program's
    /// file name as it stands in the command.
    virtual LineReader ReaderOf(std::string_view directory, std::string_view command, std::string_view program) = 0;

    /// Starts the batch file `name` in `directory`, with a normal window. Where nobody reads the command, each given
    /// word reaches the program as one argument; on Linux a given word that a reader would misread, or that does not
    /// stand at its place, is error 75. The error of a program that cannot be started carries a text that says what to
    /// do.
    virtual Error StartBatch(std::string_view directory, std::string_view name, const BatchCommand& known) = 0;
    Error StartBatch(std::string_view directory, std::string_view name) { return StartBatch(directory, name, {}); }

    /// What StartBatch would start, or its error. `disk` is where the batch is read, and nothing is left there. Where
    /// the system's command processor runs the batch, that is the batch.
    virtual Result<StartPlan> PlanStart(Files& disk, std::string_view directory, std::string_view name,
                                        const BatchCommand& known);

    /// Starts a program by its path, or by its name alone when the system finds it there. Error 75 for an argument of
    /// a batch or a DOS program that a reader would misread.
    virtual Error StartProgram(std::string_view program, const std::vector<std::string>& arguments) = 0;

    /// Whether what runs such a program is here: Wine, DOSBox, the system itself. A look at the file's first bytes;
    /// true for a file that they do not tell of, too.
    virtual bool HasRunnerFor(std::string_view) { return true; }

    /// Whether the end of the game that StartBatch started last is still to be told. Costs nothing.
    virtual bool WatchesGame() { return false; }

    /// Once for each such game, after its end. A game that another one followed is not told of.
    virtual std::optional<GameEnd> EndOfLastGame() { return std::nullopt; }

    /// What that game has printed until now, as GameEnd has it: a megabyte at most, the first part and the last.
    /// Nothing if none is kept; it is kept for the next run of the program too.
    virtual std::optional<std::string> LastOutput() { return std::nullopt; }

    /// Whether what is started runs with the rights of the system's administrator, as some games refuse to.
    virtual bool RunsAsRoot() { return false; }

    /// Shows a manual of the kind that Windows has a viewer of its own for, LV3D.hlp. Error 53 without that viewer.
    virtual Error StartHelpViewer(std::string_view) { return MakeError(error::kFileNotFound); }
};

}  // namespace lv
