// tests/foundry/golden_file.h
//
// The scripts under golden/, and how one is compared with what the program made.

#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "foundation/text.h"
#include "tests/support/test_paths.h"

namespace lv {

/// All bytes of the file.
inline Text Golden(const Text& name) {
    std::ifstream file(TestSourceDir() + "/tests/foundry/golden/" + name, std::ios::binary);
    EXPECT_TRUE(file) << name;
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

/// Line by line, so that a failure says where, and then all bytes.
inline void ExpectScript(const Text& script, const Text& expected) {
    std::istringstream expectedLines(expected);
    std::istringstream lines(script);
    Text expectedLine;
    Text actual;
    for (int number = 1; std::getline(expectedLines, expectedLine); ++number) {
        ASSERT_TRUE(std::getline(lines, actual)) << "ends before line " << number << ": " << expectedLine;
        ASSERT_EQ(actual, expectedLine) << "line " << number;
    }
    EXPECT_EQ(script, expected);
}

}  // namespace lv
