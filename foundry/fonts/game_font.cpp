#include "foundry/fonts/game_font.h"

#include "foundation/game.h"
#include "foundry/fonts/game_files.h"
#include "foundry/fonts/heretic_picture.h"
#include "foundry/fonts/pcx.h"
#include "foundry/fonts/player_colors.h"
#include "foundry/fonts/qfont.h"
#include "foundry/fonts/raw_font.h"
#include "foundry/fonts/wad.h"

namespace lv {

namespace {

struct PalettePlace {
    Game GameKind;
    TextView File;
    std::optional<Palette> (*Read)(TextView bytes);
};

struct FontPlace {
    Game GameKind;
    TextView File;
    TextView Lump;  // of the file; empty: the file itself
    std::optional<FontMap> (*Read)(TextView bytes, const std::optional<Palette>& palette);  // the game's palette
};

std::optional<FontMap> QuakeFont(TextView bytes, const std::optional<Palette>& palette) {
    return palette ? ReadQuakeFont(bytes, *palette) : std::nullopt;
}

std::optional<FontMap> Hexen2Font(TextView bytes, const std::optional<Palette>& palette) {
    return palette ? ReadHexen2Font(bytes, *palette) : std::nullopt;
}

/// The games show all their pictures in one palette; the picture's own is next to it.
std::optional<FontMap> PcxFont(TextView bytes, const std::optional<Palette>& palette) {
    const auto any = palette ? palette : ReadPcxPalette(bytes);
    return any ? ReadPcxFont(bytes, *any) : std::nullopt;
}

std::optional<FontMap> HereticFont(TextView bytes, const std::optional<Palette>&) {
    return ReadHereticFont(bytes);
}

std::optional<FontMap> HalfLifeFont(TextView bytes, const std::optional<Palette>&) {
    return ReadQfont(bytes);
}

// clang-format off
constexpr PalettePlace kPalettes[] = {
    {Game::Quake,  "gfx/palette.lmp",   ReadPalette},
    {Game::Hexen2, "gfx/palette.lmp",   ReadPalette},
    {Game::Quake2, "pics/colormap.pcx", ReadPcxPalette},
    {Game::Sin,    "pics/colormap.pcx", ReadPcxPalette},
};

constexpr FontPlace kFonts[] = {
    {Game::Quake,    "gfx.wad",                "CONCHARS", QuakeFont},
    {Game::Hexen2,   "gfx/menu/conchars.lmp",  "",         Hexen2Font},
    {Game::Quake2,   "pics/conchars.pcx",      "",         PcxFont},
    {Game::Sin,      "pics/conchars.pcx",      "",         PcxFont},
    {Game::Heretic2, "pics/misc/conchars.m32", "",         HereticFont},
    {Game::Heretic2, "pics/misc/conchars.m8",  "",         HereticFont},
    {Game::HalfLife, "gfx.wad",                "CONCHARS", HalfLifeFont},
    {Game::HalfLife, "fonts.wad",              "FONT0",    HalfLifeFont},
    {Game::HalfLife, "fonts.wad",              "FONT1",    HalfLifeFont},
    {Game::HalfLife, "fonts.wad",              "FONT2",    HalfLifeFont},
};
// clang-format on

std::optional<Palette> ReadGamePalette(Files& disk, const std::vector<Text>& directories, Game gameKind) {
    std::optional<Palette> palette;
    for (const PalettePlace& place : kPalettes) {
        if (place.GameKind == gameKind) {
            TakeGameFile(disk, directories, gameKind, place.File, [&](TextView bytes) {
                palette = place.Read(bytes);
                return palette.has_value();
            });
        }
    }
    return palette;
}

}  // namespace

std::optional<FontMap> ReadGameFont(Files& disk, const std::vector<Text>& directories, Game gameKind) {
    const auto palette = ReadGamePalette(disk, directories, gameKind);
    std::optional<FontMap> font;
    for (const FontPlace& place : kFonts) {
        if (font || place.GameKind != gameKind) {
            continue;
        }
        TakeGameFile(disk, directories, gameKind, place.File, [&](TextView bytes) {
            const auto content = place.Lump.empty() ? std::optional(bytes) : FindWadLump(bytes, place.Lump);
            font = content ? place.Read(*content, palette) : std::nullopt;
            return font.has_value();
        });
    }
    return font;
}

std::optional<std::array<Color, 14>> ReadPlayerColors(Files& disk, const std::vector<Text>& directories,
                                                      Game gameKind) {
    if (gameKind != Game::Quake && gameKind != Game::Hexen2) {
        return std::nullopt;
    }
    const auto palette = ReadGamePalette(disk, directories, gameKind);
    if (!palette || gameKind == Game::Quake) {
        return palette ? std::optional(QuakeColors(*palette)) : std::nullopt;
    }
    std::optional<PlayerColorList> colors;
    TakeGameFile(disk, directories, gameKind, "gfx/player.lmp", [&](TextView table) {
        colors = Hexen2Colors(*palette, table);
        return colors.has_value();
    });
    return colors;
}

}  // namespace lv
