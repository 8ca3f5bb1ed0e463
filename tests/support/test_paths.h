// tests/support/test_paths.h
//
// Where the tests were built from and to. In one place, so that no other file is compiled anew for a clone elsewhere.

#pragma once

#include <string>

namespace lv {

std::string TestSourceDir();
std::string TestBinaryDir();

}  // namespace lv
