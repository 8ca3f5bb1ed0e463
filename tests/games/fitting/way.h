// tests/games/fitting/way.h
//
// A command line between the steps that fit it to an engine.

#pragma once

#include <vector>

#include "games/fitting/switch_fitting.h"
#include "tests/games/fitting/fitted.h"

namespace lv {

/// The engine knows no switch otherwise and refuses none, until a test has it do so. The command is without a program.
struct Way {
    explicit Way(const Text& command, const std::vector<GivenWord>& given = {})
        : At{Its, Composed, PartsOfCommand(command, given), {}} {
        Its.DataWays.emplace_back();
        Its.Ends = CommandEnd::Argument;
    }
    Way(const Way&) = delete;
    Way& operator=(const Way&) = delete;

    /// What is left of it, a row a part.
    [[nodiscard]] Lines Left() const {
        Lines rows;
        for (const CommandPart& part : At.Parts) {
            rows.push_back(part.Written());
        }
        return rows;
    }

    Engine Its;
    ComposedCommand Composed;
    Fitting At;
};

}  // namespace lv
