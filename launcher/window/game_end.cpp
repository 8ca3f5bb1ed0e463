#include "launcher/window/game_end.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "launcher/played/played_games.h"
#include "launcher/window/window_life.h"

namespace lv {

namespace {

constexpr double kEagerSeconds = 10;  // after the start
constexpr double kPace = 2;           // seconds between looks from then on

constexpr std::size_t kLastLines = 20;
constexpr std::size_t kMostLines = 5000;
constexpr std::size_t kWidestLine = 1000;

constexpr int kSignalInCode = 128;  // what a shell adds to the signal that ended its program

constexpr TextView kCloseOrCopy = "&Close,C&opy";
constexpr Index kCopy = 1;

struct SignalRow {
    int Signal;
    bool IsCrash;
    const char* Words;
};

// clang-format off
constexpr SignalRow kSignals[] = {
    {4, true, "a crash (illegal instruction)"},
    {5, true, "a crash (trap)"},
    {6, true, "as the game gave itself up (abort)"},
    {7, true, "a crash (bus error)"},
    {8, true, "a crash (arithmetic error)"},
    {9, false, "as it was killed, by somebody or for want of memory"},
    {11, true, "a crash"},
};
// clang-format on

// Hang-up, interrupt, terminate: the user or the end of the session wants it.
constexpr int kWishes[] = {1, 2, 15};

// How engines begin the line that says what was wrong, in lower case.
constexpr TextView kErrorStarts[] = {"error:",     "quake error:", "fatal:",    "fatal error", "sys_error",
                                     "host_error", "error-out",    "couldn't ", "could not "};

const SignalRow* RowOf(int signal) {
    const auto* row = std::ranges::find(kSignals, signal, &SignalRow::Signal);
    return row == std::end(kSignals) ? nullptr : row;
}

std::vector<TextView> LinesOf(TextView text) {
    std::vector<TextView> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        TextView line = text.substr(0, end);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines.push_back(line);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

bool SpeaksOfAnError(TextView lastLines) {
    const Text last = LowerCase(LastLinesOf(lastLines, kLastLines));
    return std::ranges::any_of(LinesOf(last), [](TextView line) {
        const Text trimmed = Trim(line);
        return std::ranges::any_of(kErrorStarts, [&](TextView start) { return trimmed.starts_with(start); });
    });
}

Text Many(long long number, TextView unit) {
    return Join(std::to_string(number), " ", unit, number == 1 ? "" : "s");
}

Text Lasted(double seconds) {
    const auto whole = static_cast<long long>(seconds);
    return whole < 1 ? Text("at once")
                     : Join("after ", whole < 60     ? Many(whole, "second")
                                      : whole < 3600 ? Many(whole / 60, "minute")
                                                     : Many(whole / 3600, "hour"));
}

// In the font of messages, where wide lines wrap: in a fixed-width one their beginnings scroll out of sight.
void ShowAndOfferCopy(Run& run, const char* title, TextView shown, TextView copied) {
    if (AskUser(run, title, shown, kCloseOrCopy) != kCopy) {
        return;
    }
    if (const Error failed = run.System.Clip.SetText(copied)) {
        AskUser(run, "", failed.Text);
    }
}

}  // namespace

int SignalOf(const GameEnd& end) {
    const SignalRow* row = RowOf(end.Code - kSignalInCode);
    return end.Signal == 0 && row != nullptr && row->IsCrash ? row->Signal : end.Signal;
}

bool IsToldOf(const GameEnd& end) {
    if (const int signal = SignalOf(end)) {
        return std::ranges::find(kWishes, signal) == std::end(kWishes);
    }
    return end.Seconds < kQuickEnd && !(end.OthersRun && IsInOrder(end));
}

bool IsInOrder(const GameEnd& end) {
    return SignalOf(end) == 0 && end.Code == 0 && !SpeaksOfAnError(end.LastLines);
}

Text EndInWords(const GameEnd& end) {
    const int signal = SignalOf(end);
    if (IsInOrder(end)) {
        return Join("ended ", Lasted(end.Seconds), ", and in order");
    }
    if (signal == 0) {
        return Join("ended ", Lasted(end.Seconds), " with code ", std::to_string(end.Code));
    }
    const SignalRow* row = RowOf(signal);
    return Join("was ended ", Lasted(end.Seconds), " by signal ", std::to_string(signal), row == nullptr ? "" : ", ",
                row == nullptr ? "" : row->Words);
}

Text LastLinesOf(TextView text, std::size_t most) {
    std::vector<TextView> lines = LinesOf(text);
    std::erase_if(lines, [](TextView line) { return Trim(line).empty(); });
    Text last;
    for (std::size_t i = lines.size() - std::min(most, lines.size()); i < lines.size(); ++i) {
        last += Join(last.empty() ? "" : NewLine, lines[i]);
    }
    return last;
}

Text GameEndText(TextView name, const GameEnd& end) {
    const Text last = ShownOutput(LastLinesOf(end.LastLines, kLastLines));
    const Text said = last.empty() ? Text("It printed nothing.") : Join("Its last lines:", NewLine, NewLine, last);
    const TextView advice =
        IsInOrder(end)
            ? "If you have left it yourself, all is well. If not, its last lines mostly say what it wanted; all "
              "that it printed is under Tools, Output of the Last Game."
        : last.empty() ? "Start it once in a terminal, or look at its options with View."
                       : "Mostly they name a file that is missing or an option that the game can't use: put that right "
                         "and launch again. All of it is under Tools, Output of the Last Game.";
    return Join(name, " ", EndInWords(end), ".", NewLine, NewLine, said, NewLine, NewLine, advice);
}

Text ShownOutput(TextView output) {
    const std::vector<TextView> lines = LinesOf(output);
    Text shown;
    if (lines.size() > kMostLines) {
        shown = Join("... (", std::to_string(lines.size() - kMostLines), " lines before these; Copy takes all)");
    }
    for (std::size_t i = lines.size() - std::min(kMostLines, lines.size()); i < lines.size(); ++i) {
        for (TextView rest = lines[i];; rest.remove_prefix(kWidestLine)) {
            shown += Join(shown.empty() && i == 0 ? "" : NewLine, rest.substr(0, kWidestLine));
            if (rest.size() <= kWidestLine) {
                break;
            }
        }
    }
    return shown;
}

void NoteGameStart(Launcher& launcher, TextView path) {
    launcher.LastGame.Path = path;
    launcher.LastGame.Name = LastPathPart(path);
    launcher.LastGame.Started = launcher.run.System.Time.Seconds();
    launcher.LastGame.LookedAt = launcher.LastGame.Started;
}

bool GameEndIsDue(Launcher& launcher) {
    Run& run = launcher.run;
    if (!run.System.Programs.WatchesGame()) {
        return false;
    }
    GameUnderWay& game = launcher.LastGame;
    const double now = run.System.Time.Seconds();
    if (now - game.Started >= kEagerSeconds && now - game.LookedAt < kPace) {
        return false;
    }
    game.LookedAt = now;
    return true;
}

void TellGameEnd(Launcher& launcher) {
    Run& run = launcher.run;
    if (!run.MainFormLoaded || run.Ended || launcher.LaunchUnderWay || DialogIsUp(run)) {
        return;
    }
    const auto end = run.System.Programs.EndOfLastGame();
    if (!end) {
        return;
    }
    NotePlayEnd(run, launcher.LastGame.Path, end->Seconds);
    if (!IsToldOf(*end)) {
        return;
    }
    ShowMainWindow(launcher);
    run.User.RaiseMainWindow();
    const Text told = GameEndText(launcher.LastGame.Name, *end);
    ShowAndOfferCopy(run, "The Game Has Ended", told, told);
}

void GameOutput_Bar_Click(Launcher& launcher) {
    Run& run = launcher.run;
    const auto output = run.System.Programs.LastOutput();
    if (!output) {
        AskUser(run, "Output of the Last Game",
                "There is no output of a game. It is kept from each launch on, where the system allows it.");
    } else if (LastLinesOf(*output, 1).empty()) {
        AskUser(run, "Output of the Last Game", "The last game has printed nothing.");
    } else {
        ShowAndOfferCopy(run, "Output of the Last Game", ShownOutput(*output), *output);
    }
}

}  // namespace lv
