// tests/support/shipped_engines.h
//
// The table that the program carries, for the tests of its rules.

#pragma once

#include "games/engines/engine_table.h"

namespace lv {

/// The text of assets/engines.tsv.
const Text& ShippedEngineText();

const EngineTable& ShippedEngines();

/// By its name; a test that asks for one that is not there fails.
const Engine& ShippedEngine(TextView name);

}  // namespace lv
