// The fuzzer's corpora, read as the fuzzer reads them.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "tests/foundry/rounds.h"
#include "tests/fuzz/readers.h"
#include "tests/support/test_paths.h"

namespace lv {

void PrintTo(const FuzzedReader& reader, std::ostream* out) {
    *out << reader.Name;
}

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> CorpusFiles(const std::string& reader) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(TestSourceDir() + "/tests/fuzz/corpus/" + reader)) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string BytesOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::set<int> FirstBytes(const std::string& reader, int choices) {
    std::set<int> seen;
    for (const fs::path& file : CorpusFiles(reader)) {
        const std::string bytes = BytesOf(file);
        EXPECT_FALSE(bytes.empty()) << file;
        seen.insert(static_cast<unsigned char>(bytes.at(0)) % choices);
    }
    return seen;
}

class FuzzCorpus : public ::testing::TestWithParam<FuzzedReader> {};

}  // namespace

TEST_P(FuzzCorpus, IsReadToItsEnd) {
    const std::vector<fs::path> files = CorpusFiles(GetParam().Name);
    EXPECT_GE(files.size(), 5U);
    for (const fs::path& file : files) {
        SCOPED_TRACE(file.filename().string());
        GetParam().Read(BytesOf(file));
    }
}

TEST_P(FuzzCorpus, IsReadWhereverItIsCut) {
    constexpr std::size_t kCuts = Rounds(64U);
    for (const fs::path& file : CorpusFiles(GetParam().Name)) {
        const std::string bytes = BytesOf(file);
        for (std::size_t length = 0; length < bytes.size(); length += 1 + bytes.size() / kCuts) {
            SCOPED_TRACE(file.filename().string() + " cut at " + std::to_string(length));
            GetParam().Read(bytes.substr(0, length));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Of, FuzzCorpus, ::testing::ValuesIn(kFuzzedReaders),
                         [](const auto& reader) { return std::string(reader.param.Name); });

TEST(FuzzCorpora, HaveAReaderEach) {
    std::set<std::string> readers;
    for (const FuzzedReader& reader : kFuzzedReaders) {
        readers.insert(reader.Name);
    }
    std::set<std::string> corpora;
    for (const auto& entry : fs::directory_iterator(TestSourceDir() + "/tests/fuzz/corpus")) {
        corpora.insert(entry.path().filename().string());
    }
    EXPECT_EQ(corpora, readers);
}

TEST(FuzzCorpora, HaveAScriptOfEachKind) {
    EXPECT_EQ(FirstBytes("script", 9).size(), 9U);
}

TEST(FuzzCorpora, HaveNotesOfEachFormat) {
    EXPECT_EQ(FirstBytes("game_notes", 3).size(), 3U);
}

TEST(FuzzCorpora, HaveAFontOfEachFormat) {
    EXPECT_EQ(FirstBytes("font", 7).size(), 7U);
}

}  // namespace lv
