// Hostile scripts: each is read to its end, and leaves a document that holds together.

#include <gtest/gtest.h>

#include <random>

#include "tests/foundry/kinds.h"
#include "tests/foundry/reading.h"
#include "tests/foundry/rounds.h"
#include "tests/foundry/table_agreement.h"

namespace lv {
namespace {

/// Pieces that mean something to some reader, and some that mean nothing to any.
const std::vector<Text> kPieces = {"bind ",
                                   "alias ",
                                   "set ",
                                   "\"",
                                   "\"\"",
                                   " ",
                                   "//",
                                   "//*",
                                   "\r\n",
                                   "\r",
                                   "\n",
                                   "=",
                                   "[",
                                   "]",
                                   "[Engine.Input]\n",
                                   "[Lorvane 3D]\n",
                                   "Aliases[0]=(Command=\"",
                                   "\",Alias=",
                                   ")",
                                   "WeaponPriority[",
                                   "]=",
                                   "MouseX=Axis aMouseX Speed=",
                                   "fov ",
                                   "m_pitch -",
                                   "vid_mode ",
                                   "color ",
                                   "_cl_color ",
                                   "crosshaircolor ",
                                   "skin ",
                                   "name ",
                                   "say ",
                                   "say_team ",
                                   "exec ",
                                   "99999999999999999999",
                                   "-1",
                                   "0.5",
                                   "\xA0",
                                   "\xFF",
                                   Text(1, '\0'),
                                   "a",
                                   "mouse1",
                                   "+attack",
                                   "\t",
                                   "\x1A",
                                   "/",
                                   "%s%n",
                                   ";"};

Text MakeDamage(std::mt19937& random) {
    Text script;
    for (std::size_t pieces = random() % 200; pieces > 0; --pieces) {
        switch (random() % 8) {
            case 0:
                script += static_cast<char>(random() % 256);
                break;
            case 1:
                script += Text(random() % 300, static_cast<char>(random() % 256));
                break;
            default:
                script += kPieces[random() % kPieces.size()];
        }
    }
    return script;
}

void ExpectSound(const ScriptDocument& document) {
    EXPECT_EQ(DisagreementOf(document), "");
    EXPECT_GE(document.Sections.size(), 1U);
    for (const ListBox* list : {&document.fov_Cbo, &document.vidmode_Cbo, &document.Crosshair_Cbo,
                                &document.CrossHairColor_Cbo, &document.PlayerClass_Cbo, &document.Section_Cbo}) {
        EXPECT_GE(list->ListIndex, -1);
        EXPECT_LT(list->ListIndex, static_cast<int>(list->Items.size()));
    }
}

class DamagedScript : public ::testing::TestWithParam<Game> {
  protected:
    // Each kind starts with another step, so that no step is left out by all of them.
    std::size_t step_ = static_cast<std::size_t>(std::ranges::find(kKinds, GetParam()) - std::begin(kKinds));
};

constexpr std::size_t kSomeKinds = 3;  // with each step every third of the kinds

TEST_P(DamagedScript, IsReadToItsEnd) {
    const ScriptDocument fresh = MakeScriptDocument(DialectOf(GetParam()));
    ScriptView view;
    std::mt19937 random(static_cast<unsigned>(GetParam()));
    for (int round = 0; round < Rounds(300) && !HasFailure(); ++round) {
        const Text script = MakeDamage(random);
        ScriptDocument document = fresh;
        ReadInto(document, script, view);
        ExpectSound(document);
    }
}

TEST_P(DamagedScript, IsReadHoweverItIsCut) {
    const ScriptDocument fresh = MakeScriptDocument(DialectOf(GetParam()));
    ScriptView view;
    const Text script =
        "[Engine.Input]\r\nAliases[0]=(Command=\"Fire\",Alias=x)\r\nA=x\r\nMouseX=Axis aMouseX Speed=6.0\r\n[URL]\r\n"
        "bind a \"say_team hello\"\r\nalias y \"+jump\" // z\r\nset m_pitch -0.022\r\nskin male/grunt\r\n"
        "WeaponPriority[5]=ASMD\r\n//* Setup Foundry   *//";
    for (std::size_t length = 0; length <= script.size(); ++length) {
        if (TakesStep(step_++, kSomeKinds)) {
            ScriptDocument document = fresh;
            ReadInto(document, TextView(script).substr(0, length), view);
            ExpectSound(document);
        }
    }
}

TEST_P(DamagedScript, OfASingleHugeLineIsRead) {
    constexpr std::size_t kLength = 70000;  // longer than a block of the file
    for (const char* start : {"", "//", "bind a ", "bind ", "alias x ", "fov ", "[", "name ", "set ", "\"", "=",
                              "m_pitch -", "skin ", "vid_mode ", "color ", "[Engine.Input]\n", "A="}) {
        for (const char fill : {'x', ' ', '"', '9', '/', '\0', '\xA0', '='}) {
            if (TakesStep(step_++, std::size(kKinds))) {
                ExpectSound(ReadScript(GetParam(), start + Text(kLength, fill)));
            }
        }
    }
}

TEST_P(DamagedScript, OfManyTinyLinesIsRead) {
    for (const char* line : {"x\n", "\"\n", "[\n", "=\n", "//\n", "a=b\n", "bind\n", "x\r", "\xA0\n"}) {
        if (!TakesStep(step_++, kSomeKinds)) {
            continue;
        }
        Text script = "[Engine.Input]\n";
        for (int count = 0; count < 5000; ++count) {
            script += line;
        }
        ExpectSound(ReadScript(GetParam(), script));
    }
}

INSTANTIATE_TEST_SUITE_P(OfEveryKind, DamagedScript, ::testing::ValuesIn(kKinds));

TEST(DamagedScript, OfAKindThatIsNoneIsRead) {
    for (const Game kind : std::initializer_list<Game>{Game{-1}, Game::None, Game{7}, Game{8}, Game{10}, Game{32767}}) {
        ExpectSound(ReadScript(kind, "bind a +attack\n[x]\ncolor 1 2\nalias b c\nbind d b"));
    }
}

TEST(LongScript, ReadsTheFileNoMoreThanAFewTimes) {
    class CountingFile : public BytesFile {
      public:
        using BytesFile::BytesFile;
        Result<std::string> Read(std::uint64_t offset, std::size_t count) override {
            auto read = BytesFile::Read(offset, count);
            Bytes += read.Value.size();
            return read;
        }
        std::size_t Bytes = 0;
    };
    for (const std::size_t length : {1U, 50U, 40000U, 65536U, 70000U, 1000000U}) {
        Text script;
        while (script.size() < std::max<std::size_t>(150000, 2 * length)) {
            script += Text(length, 'x') + "\n";
        }
        CountingFile file(script);
        ScriptView view;
        ScriptDocument document = MakeScriptDocument(DialectOf(Game::Quake));
        ReadLines(file, document, view, 0, [] {});
        EXPECT_LE(file.Bytes, 6 * script.size()) << length;
    }
}

}  // namespace
}  // namespace lv
