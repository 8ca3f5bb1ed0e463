#include "foundry/tables/read_commands.h"

#include <algorithm>
#include <iterator>

#include "foundation/game.h"
#include "foundry/tables/read_command_rows.h"

namespace lv {

namespace {

struct Spelling {
    TextView Text;
    const CommandRow* Row;
};

constexpr std::size_t CountSpellings() {
    std::size_t count = 0;
    for (const CommandRow& row : kCommandRows) {
        count += static_cast<std::size_t>(std::ranges::count_if(row.Spellings, [](auto s) { return s != nullptr; }));
    }
    return count;
}

/// Sorted by the spelling; equal ones stay in the order of the rows.
constexpr auto MakeSpellings() {
    std::array<Spelling, CountSpellings()> spellings{};
    std::size_t used = 0;
    for (const CommandRow& row : kCommandRows) {
        for (const char* const spelling : row.Spellings) {
            if (spelling != nullptr) {
                spellings[used++] = {spelling, &row};
            }
        }
    }
    std::ranges::sort(spellings, [](const Spelling& a, const Spelling& b) {
        return a.Text == b.Text ? a.Row < b.Row : a.Text < b.Text;
    });
    return spellings;
}

constexpr auto kSpellings = MakeSpellings();

/// What is no kind of its own is read as Quake.
Game KnownKind(Game gameKind) {
    return Has(kEveryGame, gameKind) ? gameKind : Game::Quake;
}

}  // namespace

SlotMatch SlotFromCommand(TextView lowerCaseCommand, Game gameKind) {
    const Game kind = KnownKind(gameKind);
    SlotMatch match;
    const auto* spelling = std::ranges::lower_bound(kSpellings, lowerCaseCommand, {}, &Spelling::Text);
    for (; spelling != kSpellings.end() && spelling->Text == lowerCaseCommand; ++spelling) {
        match.Known = true;
        if (Has(spelling->Row->Kinds, kind)) {
            match.Slot = spelling->Row->Slot;
            break;
        }
    }
    return match;
}

}  // namespace lv
