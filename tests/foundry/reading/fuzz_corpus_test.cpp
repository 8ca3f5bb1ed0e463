// The corpus of the fuzzer, read as the fuzzer reads it.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "tests/foundry/rounds.h"
#include "tests/support/test_paths.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

std::vector<std::filesystem::path> Corpus() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(lv::TestSourceDir() + "/tests/foundry/fuzz/corpus")) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string BytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

int Read(const std::string& bytes) {
    return LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

TEST(FuzzCorpus, IsReadToItsEnd) {
    for (const auto& file : Corpus()) {
        SCOPED_TRACE(file.filename().string());
        EXPECT_EQ(Read(BytesOf(file)), 0);
    }
}

TEST(FuzzCorpus, HasAScriptOfEachKind) {
    std::set<int> games;
    for (const auto& file : Corpus()) {
        const std::string bytes = BytesOf(file);
        ASSERT_FALSE(bytes.empty()) << file;
        games.insert(static_cast<unsigned char>(bytes[0]) % 9);
    }
    EXPECT_EQ(games.size(), 9U);
}

TEST(FuzzCorpus, IsReadWhereverItIsCut) {
    constexpr std::size_t kCuts = lv::Rounds(64U);
    for (const auto& file : Corpus()) {
        const std::string bytes = BytesOf(file);
        for (std::size_t length = 0; length < bytes.size(); length += 1 + bytes.size() / kCuts) {
            EXPECT_EQ(Read(bytes.substr(0, length)), 0) << file << " cut at " << length;
        }
    }
}

}  // namespace
