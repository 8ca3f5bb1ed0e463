#include "tests/support/shipped_engines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>

#include "tests/support/test_paths.h"

namespace lv {

const Text& ShippedEngineText() {
    static const Text text = [] {
        std::ifstream file(TestSourceDir() + "/assets/engines.tsv", std::ios::binary);
        return Text(std::istreambuf_iterator<char>(file), {});
    }();
    return text;
}

const EngineTable& ShippedEngines() {
    static const EngineTable table = ReadEngines(ShippedEngineText(), "");
    return table;
}

const Engine& ShippedEngine(TextView name) {
    static const Engine none;
    const std::vector<Engine>& engines = ShippedEngines().Engines;
    const auto found = std::ranges::find(engines, name, &Engine::Name);
    if (found == engines.end()) {
        ADD_FAILURE() << "no engine: " << name;
        return none;
    }
    return *found;
}

}  // namespace lv
