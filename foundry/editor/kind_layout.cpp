#include "foundry/editor/kind_layout.h"

#include <algorithm>
#include <iterator>

#include "foundation/game.h"
#include "foundry/editor/player_page.h"
#include "foundry/editor/standard_aliases.h"

namespace lv {

namespace {

using F = Fig_Frm;

// What is no kind of its own is edited as Quake, which stands first.

// clang-format off

/// The pages of Bindings_Tab that some kinds have. Empty: off.
struct PagesRow {
    Game Kind;
    TextView Hexen2, Quake2, Ctf;
};

constexpr PagesRow kPages[] = {
    {Game::Quake,    "",            "",               "&CTF"},
    {Game::Hexen2,   "&Hexen ][",   "",               ""},
    {Game::Quake2,   "",            "&Quake ][",      ""},
    {Game::Unreal,   "",            "UnReal",         ""},
    {Game::Sin,      "",            "SIN",            ""},
    {Game::Heretic2, "&Heretic ][", "",               ""},
    {Game::HalfLife, "&Half-Life",  "&Camera Tricks", ""},
};

/// ColorCode_Lbl(4) to (6). Empty: hidden.
struct LegendCaptions {
    Game Kind;
    TextView Captions[3];
};

constexpr std::size_t kFirstKindLegend = 4;
constexpr LegendCaptions kLegends[] = {
    {Game::Quake,    {" CTF ", "",              ""}},
    {Game::Hexen2,   {"",      " Hexen ][",     ""}},
    {Game::Quake2,   {"",      "",              " Quake ]["}},
    {Game::Unreal,   {"",      "",              " Unreal"}},
    {Game::Sin,      {"",      "",              " Sin"}},
    {Game::Heretic2, {"",      " Heretic ][",   ""}},
    {Game::HalfLife, {"",      " Half-Life",    " Camera"}},
};

struct HiddenHeading {
    Game Kind;
    SlotNumber Heading;
};

constexpr HiddenHeading kHiddenHeadings[] = {
    {Game::Sin,      1199},
    {Game::HalfLife, 1198},
    {Game::HalfLife, 1199},
};

struct KeypadCaption {
    Index Label;
    TextView Caption;
};

// Half-Life's keypad has no keys of its own; it shows the digits all the same, kept on purpose.
constexpr KeypadCaption kKeypad[] = {
    {84, "7"}, {85,            "8"}, {86, "9"},
    {87, "4"},            {89, "6"},
    {90, "1"}, {91,            "2"}, {92, "3"},
    {94, "0"},
};

/// The Unreal pages, which stand over those of the console games, and what lies under them.
constexpr TextView kUnrealPages[] = {"Player", "Audio", "Weapon Preferance"};
constexpr std::size_t kFirstUnrealPage = 1;
constexpr std::size_t kWeaponsPage = 3;
constexpr Panel Fig_Frm::*kUnrealPanels[] = {&F::PlayerPawn_Pic, &F::UnrealAudio_Pic, &F::WeaponPriority_Pic};
constexpr Panel Fig_Frm::*kCoveredPanels[] = {&F::Speeds_Pic, &F::Mouse_Pic, &F::Angle_Pic, &F::Bob_Pic,
                                              &F::Sound_Pic};

constexpr SlotBlock kNotAvailable{206, 210};       // Half-Life: rows without a weapon
constexpr Index kFirstHiddenAux = 104;             // Unreal
constexpr Index kLastHiddenAux = 123;
// clang-format on

template <class Row, std::size_t Count>
const Row& RowOfKind(const Row (&rows)[Count], Game kind) {
    const auto* const found = std::ranges::find(rows, kind, &Row::Kind);
    return found == std::end(rows) ? rows[0] : *found;
}

/// What the kind is, as the controls ask for it.
struct Traits {
    explicit Traits(const ScriptDialect& dialect)
        : Kind(dialect.GameKind),
          Unreal(dialect.GameKind == Game::Unreal),
          HalfLife(dialect.GameKind == Game::HalfLife),
          New(dialect.ScriptFamily == Dialect::Quake2),
          Old(!Unreal && !New) {}

    Game Kind;
    bool Unreal;
    bool HalfLife;
    bool New;  // of the newer family
    bool Old;
};

void ShowPage(TabPage& page, TextView caption) {
    page.Visible = !caption.empty();
    page.Enabled = page.Visible;
    if (page.Visible) {
        page.Caption = caption;
    }
}

void ShowPages(Fig_Frm& form, Game kind) {
    const PagesRow& row = RowOfKind(kPages, kind);
    ShowPage(form.Bindings_Tab[static_cast<std::size_t>(BindingsPage::Hexen2)], row.Hexen2);
    ShowPage(form.Bindings_Tab[static_cast<std::size_t>(BindingsPage::Quake2)], row.Quake2);
    ShowPage(form.Bindings_Tab[static_cast<std::size_t>(BindingsPage::Ctf)], row.Ctf);
}

void ShowLegend(Fig_Frm& form, Game kind) {
    std::size_t place = kFirstKindLegend;
    for (const TextView caption : RowOfKind(kLegends, kind).Captions) {
        const LegendRow& own = LegendOf(place);
        ColorLabel& label = form.ColorCode_Lbl[place];
        label.Visible = !caption.empty();
        label.Caption = caption.empty() ? own.Caption : caption;
        label.BackColor = SlotColor(own.Row, kind);
        ++place;
    }
}

void ShowRows(Fig_Frm& form, const Traits& traits) {
    for (const HiddenHeading& row : kHiddenHeadings) {
        if (row.Kind == traits.Kind) {
            form.Document.Bound_Lbl[row.Heading].Visible = false;
        }
    }
    for (SlotNumber slot = kNotAvailable.First; slot <= kNotAvailable.Last; ++slot) {
        form.Document.Setting_Lbl[slot].Enabled = !traits.HalfLife;
    }
    if (traits.Kind == Game::Hexen2) {
        CaptionClassWeapons(form);
    }
    if (traits.Unreal) {
        form.Document.Unbindall_Chk.Value = 0;
    }
    form.Document.Unbindall_Chk.Visible = !traits.Unreal;
}

void ShowKeys(Fig_Frm& form, const Traits& traits) {
    for (Index label = kFirstHiddenAux; traits.Unreal && label <= kLastHiddenAux; ++label) {
        form.KeyLabelOf(label).Visible = false;
    }
    if (traits.New) {
        for (const KeypadCaption& key : kKeypad) {
            form.KeyLabelOf(key.Label).Caption = key.Caption;
        }
    }
}

void ShowPlayer(Fig_Frm& form, const Traits& traits) {
    ScriptDocument& document = form.Document;
    for (ColorLabel& label : document.PlayerColor_Lbl) {
        label.Visible = traits.Old;
    }
    if (traits.Old) {
        ShowPlayerColors(form);
    }
    document.NoColors_Chk.Visible = traits.Old;
    form.Sex_Lbl.Visible = traits.New;
    document.Sex_Cbo.Visible = traits.New;
    form.Skin_Lbl.Visible = traits.New;
    document.Skin_Cbo.Visible = traits.New;
    form.Some_Lbl.Visible = traits.Kind == Game::Hexen2;
    document.PlayerClass_Cbo.Visible = traits.Kind == Game::Hexen2;
}

void ShowSettings(Fig_Frm& form, const Traits& traits) {
    ScriptDocument& document = form.Document;
    document.Handed_Cbo.Visible = traits.New && !traits.HalfLife;
    document.CrossHairColor_Cbo.Visible = document.Dialect.IsQuakeWorld;
    EnableCrosshairColor(form);
    document.vidmode_Cbo.Visible = traits.Kind != Game::Quake2 && traits.Kind != Game::Sin;
    document.bgmvolume_Cbo.Visible = !traits.New;
    document.Q2_EnableCD_Chk.Visible = traits.New;
    document.Q2_WaveOnly_Chk.Visible = traits.New;
    if (traits.New) {
        document.MLook_Chk.Caption = "Freelook";
    }
}

void ShowUnrealPages(Fig_Frm& form, bool unreal) {
    for (Panel Fig_Frm::*const panel : kUnrealPanels) {
        (form.*panel).Visible = unreal;
    }
    for (Panel Fig_Frm::*const panel : kCoveredPanels) {
        (form.*panel).Visible = !unreal;
    }
    form.Document.Skin_Fil.Visible = !unreal;
    form.SelectNoSkin_Cmd.Visible = !unreal;
    form.Label8.Visible = !unreal;
    if (!unreal) {
        return;
    }
    TabSet& pages = form.Document.Options_Tab;
    for (std::size_t i = 0; i < std::size(kUnrealPages); ++i) {
        pages[kFirstUnrealPage + i].Caption = kUnrealPages[i];
    }
    pages[kWeaponsPage].Enabled = true;
}

}  // namespace

void ApplyGameKind(Fig_Frm& form) {
    const Traits traits(form.Document.Dialect);
    CaptionDocument(form.Document);
    ShowPages(form, traits.Kind);
    ShowLegend(form, traits.Kind);
    ShowRows(form, traits);
    ShowKeys(form, traits);
    FillStandardAliases(form);
    ShowPlayer(form, traits);
    ShowSettings(form, traits);
    ShowUnrealPages(form, traits.Unreal);
    form.TypedRows.clear();
}

}  // namespace lv
