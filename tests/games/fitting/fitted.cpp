#include "tests/games/fitting/fitted.h"

#include "tests/support/shipped_engines.h"

namespace lv {

FittedCommand Fit(TextView engine, TextView command) {
    ComposedCommand composed;
    composed.Command = command;
    return FitCommandLine(ShippedEngine(engine), composed);
}

FittedCommand FitShareware(TextView engine, TextView command) {
    ComposedCommand composed;
    composed.Command = command;
    composed.IsShareware = true;
    return FitCommandLine(ShippedEngine(engine), composed);
}

GivenWord GivenAt(const Text& command, const Text& written) {
    return {command.find(written), written, written, {}};
}

std::vector<Text> NotesOf(const FittedCommand& fitted) {
    std::vector<Text> notes;
    for (const FitNote& note : fitted.Notes) {
        notes.push_back(NoteText(note));
    }
    return notes;
}

}  // namespace lv
