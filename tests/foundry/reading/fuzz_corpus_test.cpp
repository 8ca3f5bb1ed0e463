// The corpus of the fuzzer, read as the fuzzer reads it.

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "tests/foundry/fuzz/corpus_files.h"
#include "tests/foundry/rounds.h"

namespace {

using lv::BytesOf;
using lv::CorpusFiles;

constexpr auto kFolder = "corpus";

TEST(FuzzCorpus, IsReadToItsEnd) {
    for (const auto& file : CorpusFiles(kFolder)) {
        SCOPED_TRACE(file.filename().string());
        EXPECT_EQ(lv::FuzzOne(BytesOf(file)), 0);
    }
}

TEST(FuzzCorpus, HasAScriptOfEachKind) {
    std::set<int> games;
    for (const auto& file : CorpusFiles(kFolder)) {
        const std::string bytes = BytesOf(file);
        ASSERT_FALSE(bytes.empty()) << file;
        games.insert(static_cast<unsigned char>(bytes[0]) % 9);
    }
    EXPECT_EQ(games.size(), 9U);
}

TEST(FuzzCorpus, IsReadWhereverItIsCut) {
    constexpr std::size_t kCuts = lv::Rounds(64U);
    for (const auto& file : CorpusFiles(kFolder)) {
        const std::string bytes = BytesOf(file);
        for (std::size_t length = 0; length < bytes.size(); length += 1 + bytes.size() / kCuts) {
            EXPECT_EQ(lv::FuzzOne(bytes.substr(0, length)), 0) << file << " cut at " << length;
        }
    }
}

}  // namespace
