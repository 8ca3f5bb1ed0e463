// The first byte chooses the kind of game, the rest is the script.

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "tests/foundry/reading.h"
#include "tests/foundry/table_agreement.h"

namespace {

struct Game {
    lv::Index Kind;
    bool QuakeWorld;
};

constexpr std::array<Game, 9> kGames = {
    {{1, false}, {1, true}, {2, false}, {3, false}, {4, false}, {5, false}, {6, false}, {9, false}, {0, false}}};

/// Texts are as wide as they are long, and a row shows 20 characters.
class NarrowView : public lv::ScriptView {
  public:
    int TextWidth(lv::TextView text) override { return static_cast<int>(text.size()); }
    int BoundLabelWidth(lv::SlotNumber) override { return 20; }
};

/// Made once a kind: most of a small script's time would go into the tables.
const lv::ScriptDocument& FreshDocument(std::size_t game) {
    static const std::array<lv::ScriptDocument, kGames.size()> fresh = [] {
        std::array<lv::ScriptDocument, kGames.size()> made;
        for (std::size_t i = 0; i < kGames.size(); ++i) {
            made[i] = lv::MakeScriptDocument(lv::DialectOf(kGames[i].Kind, kGames[i].QuakeWorld));
        }
        return made;
    }();
    return fresh[game];
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const lv::TextView bytes(reinterpret_cast<const char*>(data), size);
    lv::ScriptDocument document = FreshDocument(static_cast<unsigned char>(bytes[0]) % kGames.size());
    NarrowView view;
    lv::ReadInto(document, bytes.substr(1), view);
    const lv::Text wrong = lv::DisagreementOf(document);
    if (!wrong.empty()) {
        std::fprintf(stderr, "%s\n", wrong.c_str());
        std::abort();
    }
    return 0;
}
