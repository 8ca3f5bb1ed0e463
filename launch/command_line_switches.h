// launch/command_line_switches.h
//
// The table of the command line composition: one row for each thing that a launch may add, in the order of addition.

#pragma once

#include <span>

#include "foundation/game.h"
#include "launch/launch_composition.h"

namespace lv {

/// What the rows read, and the texts that they write.
struct Composition {
    const LaunchSelection& Selected;
    const LaunchGame& Game;
    const ProfileSnapshot& Profile;
    const LaunchHooks& Hooks;
    LaunchTexts& Texts;
};

/// One column of a row: what is added, "%" standing for the row's value. A script line gets its NewLine when it is
/// added; a command line addition brings its own blank.
struct CompositionCell {
    const char* Quake2Family = nullptr;
    const char* OtherFamilies = nullptr;

    constexpr CompositionCell() = default;
    constexpr CompositionCell(const char* both)
        : Quake2Family(both), OtherFamilies(both) {}  // NOLINT: a text is a cell
    constexpr CompositionCell(const char* quake2, const char* others) : Quake2Family(quake2), OtherFamilies(others) {}

    [[nodiscard]] const char* For(const LaunchGame& game) const {
        return game.ScriptFamily == Dialect::Quake2 ? Quake2Family : OtherFamilies;
    }
};

/// A row's value where it is no tunable's, or a rule that does the whole row.
struct CompositionSpecial {
    Text (*Value)(const Composition&) = nullptr;
    LaunchStop (*Rule)(const Composition&) = nullptr;

    constexpr CompositionSpecial() = default;
    constexpr CompositionSpecial(Text (*value)(const Composition&)) : Value(value) {}     // NOLINT
    constexpr CompositionSpecial(LaunchStop (*rule)(const Composition&)) : Rule(rule) {}  // NOLINT
};

enum class CompositionScope { Every, NotUnreal };

/// When a row is run: with the composition, before the script is written, or once it has been.
enum class CompositionTime { Composition, BeforeScript, ScriptWritten };

struct CompositionRow {
    LaunchStep Step = LaunchStep::NotBegun;
    CompositionScope Games = CompositionScope::Every;
    bool (*Condition)(const Composition&) = nullptr;
    const char* Tunable = nullptr;  // must be active; gives the value
    CompositionCell GameCommand;
    CompositionCell UnrealCommand;
    CompositionCell QuakeScript;
    CompositionCell Quake2Script;
    CompositionSpecial Special;
    CompositionTime Time = CompositionTime::Composition;
};

/// All rows, in the order in which they are run.
std::span<const CompositionRow> CompositionRows();

}  // namespace lv
