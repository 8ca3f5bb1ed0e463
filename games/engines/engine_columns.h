// games/engines/engine_columns.h
//
// The columns of the table of engines: what a cell of each may say.

#pragma once

#include <optional>

#include "games/engines/engine_table.h"

namespace lv {

struct EngineColumn {
    TextView Name;
    /// Takes the cell into the engine; what is wrong with it, or nothing. A cell of "-" never gets here.
    std::optional<Text> (*Take)(TextView cell, Engine& engine);
};

/// The column of this name, or null.
const EngineColumn* EngineColumnOf(TextView name);

/// Those that a row cannot do without.
bool IsNeededColumn(TextView name);

}  // namespace lv
