#include "games/engines/engine_table.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>

#include "foundation/field_strings.h"
#include "games/engines/engine_columns.h"
#include "games/engines/engine_lookup.h"

namespace lv {

namespace {

constexpr TextView kNoCell = "-";

/// What is cut off at the mark, which is passed over; all of it without one.
TextView TakeUpTo(TextView& text, char mark) {
    const std::size_t end = std::min(text.find(mark), text.size());
    const TextView taken = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return taken;
}

std::vector<Text> CellsOf(TextView line) {
    std::vector<Text> cells;
    for (bool more = true; more;) {
        more = Holds(line, TabChar);
        cells.push_back(TrimWhite(TakeUpTo(line, '\t')));
    }
    return cells;
}

/// Reads one table, a line after the other.
class TableReader {
  public:
    void Read(TextView text) {
        if (text.size() > kLargestEngineTable) {
            AddFault("the table has more than 1 MB and is not read");
            return;
        }
        if (text.starts_with("\xEF\xBB\xBF")) {
            text.remove_prefix(3);
        }
        while (!text.empty() && !done_) {
            ++line_;
            const TextView line = TakeUpTo(text, '\n');
            if (!TrimWhite(line).empty() && !line.starts_with('#')) {
                ReadLine(CellsOf(line));
            }
        }
    }

    std::vector<Engine> Engines;
    std::vector<Text> Faults;

  private:
    void ReadLine(const std::vector<Text>& cells) {
        if (!hasHeader_) {
            ReadHeader(cells);
        } else if (++rows_ > kMostEngineRows) {
            AddFault("the table has more than 10,000 rows, and the rest is not read");
            done_ = true;
        } else {
            ReadRow(cells);
        }
    }

    void ReadHeader(const std::vector<Text>& cells) {
        hasHeader_ = true;
        for (const Text& cell : cells) {
            columns_.push_back(EngineColumnOf(cell));
            if (columns_.back() == nullptr) {
                AddFault(Join("no such column: ", cell));
            }
        }
        for (const TextView needed : {"name", "programs", "games"}) {
            if (std::ranges::find(columns_, EngineColumnOf(needed)) == columns_.end()) {
                AddFault(Join("the first row names the columns, and has no \"", needed, "\""));
                done_ = true;
                return;
            }
        }
    }

    void ReadRow(const std::vector<Text>& cells) {
        Engine engine;
        if (const std::optional<Text> fault = FillIn(cells, engine)) {
            AddFault(*fault);
            return;
        }
        if (engine.DataWays.empty()) {
            engine.DataWays.emplace_back();
        }
        patterns_ += static_cast<std::size_t>(std::ranges::count_if(engine.Programs, IsProgramPattern));
        if (patterns_ > kMostEnginePatterns) {
            AddFault("the table has more than 1,000 program names with \"*\", and the rest is not read");
            done_ = true;
            return;
        }
        Engines.push_back(std::move(engine));
    }

    std::optional<Text> FillIn(const std::vector<Text>& cells, Engine& engine) {
        if (cells.size() > columns_.size()) {
            return "more cells than there are columns";
        }
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            const Text cell = i < cells.size() ? cells[i] : Text();
            if (columns_[i] == nullptr) {
                continue;
            }
            if (cell.empty() || cell == kNoCell) {
                if (IsNeededColumn(columns_[i]->Name)) {
                    return Join("nothing stands in column \"", columns_[i]->Name, "\"");
                }
            } else if (std::optional<Text> fault = columns_[i]->Take(cell, engine)) {
                return fault;
            }
        }
        const bool isSecond = !names_.insert(LowerCase(engine.Name)).second;
        return isSecond ? std::optional(Join("there is a row of that name already: ", engine.Name)) : std::nullopt;
    }

    void AddFault(TextView what) {
        if (Faults.size() < kMostEngineFaults) {
            Faults.push_back(line_ == 0 ? Text(what) : Join("line ", std::to_string(line_), ": ", what));
        }
    }

    std::vector<const EngineColumn*> columns_;
    std::set<Text> names_;
    std::size_t line_ = 0;
    std::size_t rows_ = 0;
    std::size_t patterns_ = 0;
    bool hasHeader_ = false;
    bool done_ = false;
};

}  // namespace

EngineTable ReadEngines(TextView shipped, TextView users) {
    TableReader own;
    own.Read(users);
    TableReader carried;
    carried.Read(shipped);

    std::map<Text, Engine*> replaced;
    for (Engine& engine : own.Engines) {
        replaced.emplace(LowerCase(engine.Name), &engine);
    }
    for (Engine& engine : carried.Engines) {
        if (const auto by = replaced.find(LowerCase(engine.Name)); by != replaced.end()) {
            engine = std::move(*by->second);
            by->second->Name.clear();
        }
    }
    std::erase_if(own.Engines, [](const Engine& engine) { return engine.Name.empty(); });
    EngineTable table{std::move(own.Engines), std::move(own.Faults)};
    std::ranges::move(carried.Engines, std::back_inserter(table.Engines));
    return table;
}

const Engine* EngineOf(const EngineTable& table, TextView programFileName) {
    return EngineLookup(table).Of(programFileName);
}

unsigned EngineGamesOf(Game game) {
    using namespace engine_game;
    switch (game) {
        case Game::Quake:
            return kQuake | kQuakeWorld;
        case Game::Hexen2:
            return kHexen2 | kHexenWorld;
        case Game::Quake2:
            return kQuake2;
        case Game::Unreal:
            return kUnreal;
        case Game::Sin:
            return kSin;
        case Game::Heretic2:
            return kHeretic2;
        case Game::HalfLife:
            return kHalfLife;
        case Game::None:
            break;
    }
    return 0;
}

}  // namespace lv
