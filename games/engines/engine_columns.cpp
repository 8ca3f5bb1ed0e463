#include "games/engines/engine_columns.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "foundation/field_strings.h"
#include "games/engines/engine_cells.h"

namespace lv {

namespace {

using Fault = CellFault;

constexpr CellWord<CommandEnd> kEnds[] = {
    {"any-sign", CommandEnd::AnySign},
    {"any-plus", CommandEnd::AnyPlus},
    {"after-blank", CommandEnd::AfterBlank},
    {"argument", CommandEnd::Argument},
    {"argument-word", CommandEnd::ArgumentWord},
    {"argument-plus", CommandEnd::ArgumentPlus},
    {"never", CommandEnd::Never},
};

Fault TakeName(TextView cell, Engine& engine) {
    engine.Name = cell;
    return {};
}

Fault TakePrograms(TextView cell, Engine& engine) {
    for (const Text& name : CellParts(cell, ' ')) {
        if (name.find_first_not_of("*.") == Text::npos) {
            return Join("a program name that fits anything: ", name);
        }
        if (name.find_first_of("\\/:") != Text::npos) {
            return Join("a program is a file name without its directory: ", name);
        }
        engine.Programs.push_back(LowerCase(name));
    }
    return {};
}

Fault TakeEngineGames(TextView cell, Engine& engine) {
    return TakeGames(cell, engine.Games);
}

Fault TakeRole(TextView cell, Engine& engine) {
    constexpr CellWord<EngineRole> kRoles[] = {
        {"client", EngineRole::Client}, {"server", EngineRole::Server}, {"both", EngineRole::Both}};
    return TakeCellWord(cell, kRoles, "role", engine.Role);
}

Fault TakeData(TextView cell, Engine& engine) {
    constexpr TextView kSet = "+set ";
    constexpr TextView kEnvironment = "env:";
    using Sort = DataWay::Sort;
    for (const Text& way : CellParts(cell, ';')) {
        if (SameText(way, "cwd")) {
            engine.DataWays.push_back({Sort::WorkingDirectory, {}});
        } else if (way.starts_with(kSet) && way.size() > kSet.size()) {
            engine.DataWays.push_back({Sort::Variable, Trim(DropLeft(way, kSet.size()))});
        } else if (way.starts_with(kEnvironment) && way.size() > kEnvironment.size()) {
            engine.DataWays.push_back({Sort::Environment, DropLeft(way, kEnvironment.size())});
        } else if (way.size() > 1 && way.front() == '-' && !Holds(way, Blank)) {
            engine.DataWays.push_back({Sort::Option, way});
        } else {
            return Join("no way to tell a directory: ", way);
        }
    }
    return {};
}

Fault TakeShareware(TextView cell, Engine& engine) {
    constexpr CellWord<bool> kWords[] = {{"all", false}, {"autoexec", true}};
    return TakeCellWord(cell, kWords, "way of shareware", engine.SharewareNeedsAutoexec);
}

Fault TakeLimit(TextView cell, Engine& engine) {
    const std::vector<Text> numbers = CellParts(cell, ' ');
    std::size_t read[2] = {0, 0};
    if (numbers.size() != std::size(read)) {
        return Join("two numbers are wanted, characters and arguments: ", cell);
    }
    for (std::size_t i = 0; i < std::size(read); ++i) {
        const char* const end = numbers[i].data() + numbers[i].size();
        const auto [behind, error] = std::from_chars(numbers[i].data(), end, read[i]);
        if (error != std::errc() || behind != end) {
            return Join("no number: ", numbers[i]);
        }
    }
    engine.LongestLine = read[0];
    engine.MostArguments = read[1];
    return {};
}

Fault TakeEnds(TextView cell, Engine& engine) {
    return TakeCellWord(cell, kEnds, "end of a command", engine.Ends);
}

Fault TakeQuotes(TextView cell, Engine& engine) {
    constexpr CellWord<bool> kWords[] = {{"lost", false}, {"kept", true}};
    return TakeCellWord(cell, kWords, "way of quotes", engine.KeepsQuotes);
}

Fault TakeSet(TextView cell, Engine& engine) {
    constexpr CellWord<SetCommand> kWords[] = {
        {"no", SetCommand::No}, {"yes", SetCommand::Yes}, {"early", SetCommand::Early}};
    return TakeCellWord(cell, kWords, "way of +set", engine.Set);
}

Fault TakeScripts(TextView cell, Engine& engine) {
    if (!SameText(cell, "any") && !cell.starts_with('.')) {
        return Join("any, or an ending that begins with a point, is wanted: ", cell);
    }
    engine.ScriptEnding = cell.starts_with('.') ? LowerCase(cell) : Text();
    return {};
}

Fault TakeHome(TextView cell, Engine& engine) {
    constexpr CellWord<bool> kWords[] = {{"environment", false}, {"account", true}, {"none", false}};
    return TakeCellWord(cell, kWords, "way to a home", engine.HomeOfAccount);
}

Fault TakeRoot(TextView cell, Engine& engine) {
    constexpr CellWord<bool> kWords[] = {{"runs", false}, {"refuses", true}};
    return TakeCellWord(cell, kWords, "way with root", engine.RefusesRoot);
}

Fault TakeStarts(TextView cell, Engine& engine) {
    const std::vector<Text> programs = CellParts(cell, ' ');
    if (programs.size() != 2) {
        return Join("two programs are wanted, its own and the one in its place: ", cell);
    }
    engine.StartedAs = programs[0];
    engine.StartInstead = programs[1];
    return {};
}

Fault TakeRerelease(TextView cell, Engine& engine) {
    constexpr CellWord<bool> kWords[] = {{"plays", false}, {"refuses", true}};
    return TakeCellWord(cell, kWords, "way with a rerelease", engine.RefusesRerelease);
}

Fault TakePackage(TextView cell, Engine& engine) {
    const std::size_t part = cell.find('/');
    engine.DebianPart = part == TextView::npos ? TextView() : cell.substr(0, part);
    engine.DebianPackage = part == TextView::npos ? cell : cell.substr(part + 1);
    return {};
}

template <Text Engine::*Member>
Fault TakeText(TextView cell, Engine& engine) {
    engine.*Member = cell;
    return {};
}

constexpr EngineColumn kColumns[] = {
    {"name", TakeName},
    {"programs", TakePrograms},
    {"games", TakeEngineGames},
    {"role", TakeRole},
    {"data", TakeData},
    {"shareware", TakeShareware},
    {"wants", TakeWantedSwitches},
    {"refused", TakeRefusedSwitches},
    {"written", TakeWrittenOtherwise},
    {"limit", TakeLimit},
    {"ends", TakeEnds},
    {"quotes", TakeQuotes},
    {"set", TakeSet},
    {"scripts", TakeScripts},
    {"home", TakeHome},
    {"root", TakeRoot},
    {"starts", TakeStarts},
    {"nodata", TakeText<&Engine::WithoutData>},
    {"rerelease", TakeRerelease},
    {"debian", TakePackage},
    {"page", TakeText<&Engine::HomePage>},
    {"known", TakeText<&Engine::Known>},
};

}  // namespace

const EngineColumn* EngineColumnOf(TextView name) {
    const auto found = std::ranges::find_if(kColumns, [&](const auto& column) { return SameText(column.Name, name); });
    return found == std::end(kColumns) ? nullptr : &*found;
}

bool IsNeededColumn(TextView name) {
    return SameText(name, "name") || SameText(name, "programs") || SameText(name, "games");
}

}  // namespace lv
