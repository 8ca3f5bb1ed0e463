#include "games/engines/start_rules.h"

#include "foundation/field_strings.h"

namespace lv {

namespace {

/// The directory that a rerelease's data stand in, beside the classic ones.
constexpr TextView kRerelease = "rerelease";

}  // namespace

Text ProgramToStart(Files& disk, const Engine& engine, TextView program) {
    if (engine.StartInstead.empty() || disk.ToHost(program) != ToUtf8(engine.StartedAs)) {
        return Text(program);
    }
    const Text instead = disk.FromHost(ToUtf8(engine.StartInstead));
    return !instead.empty() && disk.FileExists(instead) ? instead : Text(program);
}

bool TakesDataOf(const Engine& engine, TextView directory) {
    return !engine.RefusesRerelease || !SameText(LastPathPart(directory), kRerelease);
}

std::optional<Text> WhyNoUseToStart(const Engine& engine, const EngineStart& start) {
    if (start.AsRoot && engine.RefusesRoot) {
        return Join(engine.Name, " does not run as root. Log in as a user of your own to play.");
    }
    if (!start.DataDirectoryExists) {
        const Text does =
            engine.WithoutData.empty() ? Text() : Join(" Without it ", engine.Name, " ", engine.WithoutData, ".");
        return Join("The game's directory is missing: ", start.DataDirectory, ".", does,
                    " Mount its disk, or choose another directory.");
    }
    if (!TakesDataOf(engine, start.DataDirectory)) {
        return Join(engine.Name, " cannot use the data of the rerelease. Choose the directory above \"", kRerelease,
                    "\", which holds the classic game.");
    }
    return {};
}

}  // namespace lv
