// What holds after any run of operations on the key and slot tables.

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <random>
#include <vector>

#include "foundry/document/bindings.h"
#include "tests/foundry/kinds.h"
#include "tests/foundry/watching_view.h"

namespace lv {
namespace {

/// A key list taken apart, by a way of its own.
std::vector<Text> Pieces(Text keyList) {
    std::vector<Text> pieces;
    while (!keyList.empty()) {
        const std::size_t end = keyList.find(" : ");
        pieces.push_back(keyList.substr(0, end));
        keyList.erase(0, end == Text::npos ? end : end + 3);
    }
    return pieces;
}

/// What the tables should hold: the slot of each key, and the keys of each slot in the order of their binding.
struct Model {
    std::map<KeyIndex, SlotNumber> SlotOfKey;
    std::map<SlotNumber, std::vector<KeyIndex>> KeysOfSlot;

    void Unbind(KeyIndex key) {
        const auto found = SlotOfKey.find(key);
        if (found != SlotOfKey.end()) {
            std::erase(KeysOfSlot[found->second], key);
            SlotOfKey.erase(found);
        }
    }
    void Bind(KeyIndex key, SlotNumber slot) {
        Unbind(key);
        SlotOfKey[key] = slot;
        KeysOfSlot[slot].push_back(key);
    }
    void Clear(SlotNumber slot) {
        for (const KeyIndex key : std::vector<KeyIndex>(KeysOfSlot[slot])) {
            Unbind(key);
        }
    }
};

class Tables {
  public:
    explicit Tables(Game kind) : document_(MakeScriptDocument({.GameKind = kind})) {
        for (const SlotBlock& block : {kExtras, kBoundAliases, kBoundScripts, kMessages}) {
            for (SlotNumber slot = block.First; slot <= block.Last; ++slot) {
                document_.SlotCommand[slot] = "free " + std::to_string(slot);
            }
        }
        std::ranges::copy_if(SlotNumbers(), std::back_inserter(slots_),
                             [&](SlotNumber slot) { return !document_.SlotCommand[slot].empty(); });
    }

    void Do(std::mt19937& random) {
        const auto key = static_cast<KeyIndex>(static_cast<int>(random() % 140) - 2);  // some are none
        const SlotNumber slot = slots_[random() % slots_.size()];
        switch (random() % 10) {
            case 0:
            case 1:
                UnbindKey(document_, view_, key);
                model_.Unbind(key);
                break;
            case 2:
                ClearSlotKeys(document_, view_, slot);
                model_.Clear(slot);
                break;
            default:
                BindKey(document_, view_, key, slot);
                if (key >= 0 && key < kKeyCount) {
                    model_.Bind(key, slot);
                }
        }
    }

    void Check() {
        for (KeyIndex key = 0; key < kKeyCount; ++key) {
            CheckKey(key);
        }
        for (const SlotNumber slot : SlotNumbers()) {
            std::vector<Text> expected;
            for (const KeyIndex key : model_.KeysOfSlot[slot]) {
                expected.push_back(document_.KeyCaption[static_cast<std::size_t>(key)]);
            }
            EXPECT_EQ(Pieces(document_.Setting_Lbl[slot].Caption), expected) << slot;
        }
    }

  private:
    void CheckKey(KeyIndex key) {
        const Text& binding = document_.KeyBinding[static_cast<std::size_t>(key)];
        const auto slot = model_.SlotOfKey.find(key);
        if (slot == model_.SlotOfKey.end()) {
            EXPECT_EQ(binding, "") << key;
            EXPECT_TRUE(IsTwinOfAnother(key) || view_.KeyColor(key) == kWhite) << key;
            return;
        }
        EXPECT_EQ(binding, document_.SlotCommand[slot->second]) << key;
        EXPECT_TRUE(IsTwinOfAnother(key) || view_.KeyColor(key) != kWhite) << key;
    }

    /// Whether another key paints this one's label too.
    [[nodiscard]] bool IsTwinOfAnother(KeyIndex key) const {
        const Game kind = document_.Dialect.GameKind;
        return kind == Game::Unreal
                   ? key == 93
                   : (kind == Game::Quake || kind == Game::Hexen2 || kind == Game::HalfLife) && key >= 82 && key <= 95;
    }

    ScriptDocument document_;
    WatchingView view_;
    Model model_;
    std::vector<SlotNumber> slots_;
};

class BindingProperties : public testing::TestWithParam<Game> {};

TEST_P(BindingProperties, KeyTableAndKeyListsAgreeAfterThousandsOfOperations) {
    const Game kind = GetParam();
    std::mt19937 random(static_cast<unsigned>(kind));
    Tables tables(kind);
    constexpr int kRounds = 60;
    constexpr int kOperations = 100;
    for (int round = 0; round < kRounds && !HasFailure(); ++round) {
        for (int i = 0; i < kOperations; ++i) {
            tables.Do(random);
        }
        tables.Check();
    }
}

INSTANTIATE_TEST_SUITE_P(OfEveryKind, BindingProperties, testing::ValuesIn(kKinds));

TEST(BindingProperties, EveryKeyOfAFullRowComesFreeByOneClearing) {
    ScriptDocument document = MakeScriptDocument({.GameKind = Game::Quake2});
    WatchingView view;
    for (KeyIndex key = 0; key < kKeyCount; ++key) {
        BindKey(document, view, key, 111);
    }
    EXPECT_EQ(Pieces(document.Setting_Lbl[111].Caption).size(), 136U);
    ClearSlotKeys(document, view, 111);
    EXPECT_EQ(document.Setting_Lbl[111].Caption, "");
    EXPECT_TRUE(std::ranges::all_of(document.KeyBinding, [](const Text& binding) { return binding.empty(); }));
}

}  // namespace
}  // namespace lv
