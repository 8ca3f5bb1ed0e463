// The first byte chooses the kind of game, the rest is the script.

#include <array>
#include <cstddef>

#include "tests/foundry/reading.h"
#include "tests/foundry/table_agreement.h"
#include "tests/fuzz/readers.h"

namespace {

struct PlayedGame {
    lv::Game Kind;
    bool QuakeWorld;
};

constexpr std::array<PlayedGame, 9> kGames = {{{lv::Game::Quake, false},
                                               {lv::Game::Quake, true},
                                               {lv::Game::Hexen2, false},
                                               {lv::Game::Quake2, false},
                                               {lv::Game::Unreal, false},
                                               {lv::Game::Sin, false},
                                               {lv::Game::Heretic2, false},
                                               {lv::Game::HalfLife, false},
                                               {lv::Game::None, false}}};

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

namespace lv {

void FuzzScript(TextView input) {
    if (input.empty()) {
        return;
    }
    ScriptDocument document = FreshDocument(TakeChoice(input, kGames.size()));
    NarrowView view;
    ReadInto(document, input, view);
    const Text wrong = DisagreementOf(document);
    MustHold(wrong.empty(), wrong.c_str());
}

}  // namespace lv
