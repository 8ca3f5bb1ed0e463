#include "games/engines/engine_cells.h"

namespace lv {

namespace {

constexpr std::size_t kMostListed = 64;  // in one cell

constexpr CellWord<unsigned> kGames[] = {
    {"quake", engine_game::kQuake},       {"quakeworld", engine_game::kQuakeWorld},
    {"hexen2", engine_game::kHexen2},     {"hexenworld", engine_game::kHexenWorld},
    {"quake2", engine_game::kQuake2},     {"unreal", engine_game::kUnreal},
    {"sin", engine_game::kSin},           {"heretic2", engine_game::kHeretic2},
    {"halflife", engine_game::kHalfLife},
};

}  // namespace

std::vector<Text> CellParts(TextView cell, char mark) {
    std::vector<Text> parts;
    while (!cell.empty() && parts.size() < kMostListed) {
        const std::size_t end = std::min(cell.find(mark), cell.size());
        if (const TextView part = TrimmedView(cell.substr(0, end)); !part.empty()) {
            parts.emplace_back(part);
        }
        cell.remove_prefix(std::min(end + 1, cell.size()));
    }
    return parts;
}

CellFault TakeGames(TextView cell, unsigned& into) {
    into = 0;
    for (const Text& name : CellParts(cell, ' ')) {
        unsigned game = 0;
        if (CellFault fault = TakeCellWord(name, kGames, "game", game)) {
            return fault;
        }
        into |= game;
    }
    return {};
}

CellFault TakeWantedSwitches(TextView cell, Engine& engine) {
    for (const Text& want : CellParts(cell, ';')) {
        const std::size_t colon = want.find(':');
        WantedSwitch wanted;
        if (colon == Text::npos || Trim(want.substr(colon + 1)).empty()) {
            return Join("a game, \":\" and its switches are wanted: ", want);
        }
        if (CellFault fault = TakeGames(want.substr(0, colon), wanted.Games)) {
            return fault;
        }
        wanted.Switch = Trim(want.substr(colon + 1));
        engine.Wanted.push_back(std::move(wanted));
    }
    return {};
}

CellFault TakeRefusedSwitches(TextView cell, Engine& engine) {
    for (const Text& group : CellParts(cell, ';')) {
        const std::size_t colon = group.rfind(':');
        if (colon == Text::npos || Trim(group.substr(0, colon)).empty()) {
            return Join("a reason, \":\" and switches are wanted: ", group);
        }
        for (const Text& name : CellParts(TextView(group).substr(colon + 1), ' ')) {
            if (name.front() != '-' && name.front() != '+') {
                return Join("a switch begins with \"-\" or \"+\": ", name);
            }
            engine.Refused.push_back({LowerCase(name), Trim(group.substr(0, colon))});
        }
    }
    return {};
}

CellFault TakeWrittenOtherwise(TextView cell, Engine& engine) {
    for (const Text& rule : CellParts(cell, ';')) {
        const std::size_t equals = rule.find('=');
        std::vector<Text> from = CellParts(TextView(rule).substr(0, equals), ' ');
        const Text to = equals == Text::npos ? Text() : Trim(rule.substr(equals + 1));
        if (from.empty() || to.empty()) {
            return Join("a switch, \"=\" and how it is written are wanted: ", rule);
        }
        if (std::ranges::count(from, "%") > 1 || (Holds(to, "%") && std::ranges::count(from, "%") == 0)) {
            return Join("one word, \"%\", on the left goes into the right: ", rule);
        }
        engine.Otherwise.push_back({std::move(from), to});
    }
    return {};
}

}  // namespace lv
