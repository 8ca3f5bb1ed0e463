#include "tests/support/test_paths.h"

namespace lv {

std::string TestSourceDir() {
    return LV_TEST_SOURCE_DIR;
}

std::string TestBinaryDir() {
    return LV_TEST_BINARY_DIR;
}

}  // namespace lv
