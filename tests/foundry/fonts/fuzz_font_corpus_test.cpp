// The corpus of the fuzzer of fonts, read as the fuzzer reads it.

#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string>

#include "tests/foundry/fuzz/corpus_files.h"
#include "tests/foundry/rounds.h"

namespace {

using lv::BytesOf;
using lv::CorpusFiles;

constexpr auto kFolder = "font_corpus";

TEST(FuzzFontCorpus, IsReadToItsEnd) {
    for (const auto& file : CorpusFiles(kFolder)) {
        SCOPED_TRACE(file.filename().string());
        EXPECT_EQ(lv::FuzzOne(BytesOf(file)), 0);
    }
}

TEST(FuzzFontCorpus, HasAFileOfEachFormat) {
    std::set<int> formats;
    for (const auto& file : CorpusFiles(kFolder)) {
        const std::string bytes = BytesOf(file);
        ASSERT_FALSE(bytes.empty()) << file;
        formats.insert(static_cast<unsigned char>(bytes[0]) % 7);
    }
    EXPECT_EQ(formats.size(), 7U);
}

TEST(FuzzFontCorpus, IsReadWhereverItIsCut) {
    constexpr std::size_t kCuts = lv::Rounds(64U);
    for (const auto& file : CorpusFiles(kFolder)) {
        const std::string bytes = BytesOf(file);
        for (std::size_t length = 0; length < bytes.size(); length += 1 + bytes.size() / kCuts) {
            EXPECT_EQ(lv::FuzzOne(bytes.substr(0, length)), 0) << file << " cut at " << length;
        }
    }
}

}  // namespace
