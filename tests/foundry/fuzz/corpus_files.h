// tests/foundry/fuzz/corpus_files.h
//
// The files of a fuzzer's corpus, and the fuzzer that a test program is linked with.

#pragma once

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "tests/support/test_paths.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace lv {

/// All files of a folder beside this header, by name.
inline std::vector<std::filesystem::path> CorpusFiles(const std::string& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(TestSourceDir() + "/tests/foundry/fuzz/" + folder)) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

inline std::string BytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline int FuzzOne(const std::string& bytes) {
    return LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

}  // namespace lv
