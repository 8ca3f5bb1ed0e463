#include "foundry/fonts/own_font.h"

#include <algorithm>
#include <array>

#include "foundation/game.h"
#include "foundry/fonts/latin_letters.h"
#include "foundry/fonts/name_codes.h"
#include "foundry/fonts/own_letters.h"

namespace lv {

namespace {

constexpr int kGoldenHalf = 128;
constexpr int kFirstSmallDigit = 18;
constexpr int kLastSmallDigit = 27;
constexpr int kLetterSize = 8;

using Rows = std::array<std::uint8_t, kLetterSize>;

/// Percent of each light.
struct Tone {
    int Red;
    int Green;
    int Blue;
};

constexpr Tone kGrey = {96, 97, 100};
constexpr Tone kGold = {104, 74, 24};

bool IsSet(const Rows& rows, int x, int y) {
    return y >= 0 && y < kFontCell && (rows[static_cast<std::size_t>(y / 2)] >> (kLetterSize - 1 - x / 2) & 1) != 0;
}

/// Light at the top, darker towards the bottom, with a bright upper edge and a dark lower one.
int LightAt(const Rows& rows, int x, int y) {
    constexpr int kTop = 222;
    constexpr int kFall = 7;  // a row
    constexpr int kEdge = 33;
    const int upper = IsSet(rows, x, y - 1) ? 0 : kEdge;
    const int lower = IsSet(rows, x, y + 1) ? 0 : kEdge;
    return kTop - kFall * y + upper - lower;
}

void Draw(FontMap& map, int code, const Rows& rows, const Tone& tone) {
    const int left = code % kFontCellsInRow * kFontCell;
    const int top = code / kFontCellsInRow * kFontCell;
    for (int y = 0; y < kFontCell; ++y) {
        for (int x = 0; x < kFontCell; ++x) {
            if (!IsSet(rows, x, y)) {
                continue;
            }
            const int light = LightAt(rows, x, y);
            const auto part = [light](int percent) {
                return static_cast<std::uint8_t>(std::clamp(light * percent / 100, 0, 255));
            };
            const std::array<std::uint8_t, 4> pixel = {part(tone.Red), part(tone.Green), part(tone.Blue), 255};
            std::ranges::copy(pixel, map.Pixel(left + x, top + y));
        }
    }
}

Rows PlainRows(char letter) {
    const auto* found = std::ranges::find(kPlainLetters, static_cast<int>(letter), &OwnLetter::Code);
    return found->Rows;
}

/// A capital moves below what stands above it, and loses a row; a small letter has two rows to spare, but for a dot.
Rows RoomForAccent(const Rows& letter, bool capital) {
    if (!capital) {
        return {0, 0, letter[2], letter[3], letter[4], letter[5], letter[6], letter[7]};
    }
    return {0, 0, letter[0], letter[2], letter[3], letter[4], letter[5], letter[6]};
}

Rows Compose(const AccentedLetter& accented) {
    const bool capital = accented.Letter >= 'A' && accented.Letter <= 'Z';
    const Rows letter = PlainRows(accented.Letter);
    Rows rows = accented.With == Accent::Cedilla ? letter : RoomForAccent(letter, capital);
    const Rows& accent = kAccents[static_cast<std::size_t>(accented.With)].Rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i] = static_cast<std::uint8_t>(rows[i] | accent[i]);
    }
    return rows;
}

bool HasLatinHalf(Game gameKind) {
    return gameKind == Game::Unreal || gameKind == Game::Heretic2;
}

void DrawLowerHalf(FontMap& map) {
    for (const OwnLetter& letter : kPlainLetters) {
        Draw(map, letter.Code, letter.Rows, kGrey);
    }
    for (const OwnLetter& cell : kDecorations) {
        const bool golden = cell.Code >= kFirstSmallDigit && cell.Code <= kLastSmallDigit;
        if (cell.Code < kGoldenHalf) {
            Draw(map, cell.Code, cell.Rows, golden ? kGold : kGrey);
        }
    }
}

void DrawGoldenHalf(FontMap& map) {
    for (const OwnLetter& letter : kPlainLetters) {
        Draw(map, kGoldenHalf + letter.Code, letter.Rows, kGold);
    }
    for (const OwnLetter& cell : kDecorations) {
        Draw(map, cell.Code < kGoldenHalf ? kGoldenHalf + cell.Code : cell.Code, cell.Rows, kGold);
    }
}

void DrawLatinHalf(FontMap& map) {
    for (const OwnLetter& sign : kLatinSigns) {
        Draw(map, sign.Code, sign.Rows, kGrey);
    }
    for (const AccentedLetter& accented : kAccentedLetters) {
        Draw(map, accented.Code, Compose(accented), kGrey);
    }
}

void ClearCell(FontMap& map, int code) {
    const int left = code % kFontCellsInRow * kFontCell;
    const int top = code / kFontCellsInRow * kFontCell;
    for (int y = 0; y < kFontCell; ++y) {
        std::fill_n(map.Pixel(left, top + y), kFontCell * 4, std::uint8_t{0});
    }
}

}  // namespace

FontMap OwnFont(Game gameKind) {
    FontMap map;
    DrawLowerHalf(map);
    if (HasLatinHalf(gameKind)) {
        DrawLatinHalf(map);
    } else {
        DrawGoldenHalf(map);
    }
    for (int code = 0; gameKind == Game::Unreal && code < kFontCodes; ++code) {
        if (!NameTakes(gameKind, code)) {
            ClearCell(map, code);
        }
    }
    return map;
}

}  // namespace lv
