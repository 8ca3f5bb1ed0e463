#include "foundry/tables/keys.h"

#include <algorithm>
#include <iterator>

#include "foundation/game.h"
#include "foundry/tables/key_rows.h"

namespace lv {

namespace {

constexpr KeyIndex kPlus = 77;
constexpr KeyIndex kEnter = 75;

struct Spelling {
    static constexpr std::size_t kRoom = 16;

    std::array<char, kRoom> Letters = {};
    std::size_t Length = 0;
    KeyIndex Key = kNoKey;

    [[nodiscard]] constexpr TextView View() const { return {Letters.data(), Length}; }
};

constexpr Spelling LowerSpelling(TextView name, KeyIndex key) {
    Spelling spelling{.Length = name.size(), .Key = key};
    for (std::size_t i = 0; i < name.size(); ++i) {
        spelling.Letters[i] = name[i] >= 'A' && name[i] <= 'Z' ? static_cast<char>(name[i] - 'A' + 'a') : name[i];
    }
    return spelling;
}

constexpr std::size_t CountSpellings() {
    std::size_t count = std::size(kKeyRows);
    for (const KeyRow& row : kKeyRows) {
        count +=
            static_cast<std::size_t>(std::ranges::count_if(row.AlsoRead, [](const char* s) { return s != nullptr; }));
    }
    return count;
}

/// Sorted by the spelling, then by the key: the first of equal ones is the one that a walk down the table meets.
constexpr auto MakeSpellings() {
    std::array<Spelling, CountSpellings()> spellings{};
    std::size_t used = 0;
    for (std::size_t key = 0; key < std::size(kKeyRows); ++key) {
        spellings[used++] = LowerSpelling(kKeyRows[key].ConsoleName, static_cast<KeyIndex>(key));
        for (const char* const also : kKeyRows[key].AlsoRead) {
            if (also != nullptr) {
                spellings[used++] = LowerSpelling(also, static_cast<KeyIndex>(key));
            }
        }
    }
    std::ranges::sort(spellings, [](const Spelling& a, const Spelling& b) {
        return a.View() == b.View() ? a.Key < b.Key : a.View() < b.View();
    });
    return spellings;
}

constexpr auto kSpellings = MakeSpellings();

struct KeyComment {
    KeyIndex Key;
    TextView Comment;
};

constexpr KeyComment kComments[] = {
    {84, "key pad 7"}, {85, "key pad 8"}, {86, "key pad 9"}, {87, "key pad 4"}, {88, "key pad 5"},
    {89, "key pad 6"}, {90, "key pad 1"}, {91, "key pad 2"}, {92, "key pad 3"}, {94, "key pad 0"},
};

TextView CommentOf(KeyIndex key) {
    const auto* const found = std::ranges::find(kComments, key, &KeyComment::Key);
    return found == std::end(kComments) ? TextView() : found->Comment;
}

struct Mirror {
    KeyIndex Key;
    Index Label;
};

constexpr Mirror kMirrors[] = {
    {32, 88}, {49, 149}, {50, 150}, {51, 151}, {54, 82}, {62, 83}, {65, 94}, {66, 95}, {67, 84},
    {69, 86}, {70, 92},  {71, 85},  {72, 91},  {73, 87}, {74, 89}, {75, 93}, {68, 90},
};

bool KindMirrors(KeyIndex key, Game gameKind) {
    switch (gameKind) {
        case Game::Quake2:
        case Game::Sin:
        case Game::Heretic2:
            return false;
        case Game::Unreal:
            return key == kEnter;
        default:
            return true;
    }
}

}  // namespace

KeyStyle StyleOfFamily(Dialect scriptFamily) {
    switch (scriptFamily) {
        case Dialect::Quake2:
            return KeyStyle::NewConsole;
        case Dialect::Unreal:
            return KeyStyle::Unreal;
        default:
            return KeyStyle::OldConsole;
    }
}

WrittenKey KeyName(KeyIndex key, KeyStyle style) {
    if (key < 0 || key >= kKeyCount) {
        return {};
    }
    const KeyRow& row = kKeyRows[key];
    if (style == KeyStyle::Unreal) {
        return {row.UnrealName, {}};
    }
    if (key == kPlus && style == KeyStyle::NewConsole) {
        return {"kp_plus", {}};
    }
    return {row.ConsoleName, CommentOf(key)};
}

KeyIndex KeyFromName(TextView spelling) {
    const auto* const found = std::ranges::lower_bound(kSpellings, spelling, {}, &Spelling::View);
    return found != kSpellings.end() && found->View() == spelling ? found->Key : kNoKey;
}

KeyTexts KeyCaptions(Game gameKind) {
    KeyTexts captions;
    std::ranges::transform(kKeyRows, captions.begin(), [](const KeyRow& row) { return Text(row.Caption); });
    if (gameKind == Game::Quake2 || gameKind == Game::Sin) {
        captions[static_cast<std::size_t>(kPlus)] = "kp+";
    }
    return captions;
}

KeyIndex KeyIndexOfCaption(const KeyTexts& captions, TextView caption) {
    const auto found = std::ranges::find(captions, caption);
    return found == captions.end() ? kNoKey : static_cast<KeyIndex>(found - captions.begin());
}

Index MirrorLabel(KeyIndex key, Game gameKind) {
    const auto* const found = std::ranges::find(kMirrors, key, &Mirror::Key);
    return found != std::end(kMirrors) && KindMirrors(key, gameKind) ? found->Label : kNoKey;
}

}  // namespace lv
