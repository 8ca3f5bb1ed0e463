#include "foundry/document/written_commands.h"

#include <algorithm>
#include <iterator>

#include "foundry/tables/bindings_page_rows.h"

namespace lv {

namespace {

// What is no kind of its own is edited as Quake.

TextView CommandOf(const MovementRow& row, Game kind) {
    switch (kind) {
        case Game::HalfLife:
            return row.HalfLife;
        case Game::Unreal:
            return row.Unreal;
        default:
            return row.Console;
    }
}

TextView CellOf(const WeaponRow& row, Game kind) {
    switch (kind) {
        case Game::Quake2:
            return row.Quake2;
        case Game::Sin:
            return row.Sin;
        case Game::Heretic2:
            return row.Heretic2;
        case Game::HalfLife:
            return row.HalfLife;
        case Game::Unreal:
            return row.Unreal;
        default:
            return row.Quake;
    }
}

TextView CommandOf(const SystemRow& row, Game kind) {
    switch (kind) {
        case Game::Quake2:
        case Game::Sin:
        case Game::Heretic2:
        case Game::HalfLife:
            return row.NewConsole;
        case Game::Unreal:
            return row.Unreal;
        default:
            return row.OldConsole;
    }
}

struct Cells {
    TextView Command;
    TextView Caption;
};

Cells CellsOf(const ActionRow& row, Game kind) {
    switch (kind) {
        case Game::Hexen2:
            return {row.Hexen2, row.Hexen2Caption};
        case Game::Heretic2:
            return {row.Heretic2, row.Heretic2Caption};
        case Game::HalfLife:
            return {row.HalfLife, row.HalfLifeCaption};
        default:
            return {};
    }
}

Cells CellsOf(const ItemRow& row, Game kind) {
    switch (kind) {
        case Game::Sin:
            return {row.Sin, row.SinCaption};
        case Game::HalfLife:
            return {row.HalfLife, row.HalfLifeCaption};
        case Game::Unreal:
            return {row.Unreal, row.UnrealCaption};
        default:
            return {row.Console, row.Caption};
    }
}

/// What the kind has in place of the row's own text.
template <std::size_t Count>
TextView TextOr(const KindText (&others)[Count], SlotNumber slot, Game kind, TextView own) {
    const auto* const found =
        std::ranges::find_if(others, [&](const KindText& other) { return other.Slot == slot && other.Kind == kind; });
    return found == std::end(others) ? own : found->Text;
}

template <std::size_t Count>
bool Lists(const KindSlot (&slots)[Count], SlotNumber slot, Game kind) {
    return std::ranges::any_of(slots, [&](const KindSlot& s) { return s.Slot == slot && s.Kind == kind; });
}

class Filler {
  public:
    Filler(ScriptDocument& document, Game kind) : document_(document), kind_(kind) {}

    void Put(SlotNumber slot, TextView command, TextView caption) {
        const TextView written = TextOr(kOtherCommands, slot, kind_, command);
        const bool shown = written.empty() ? Lists(kShownSlots, slot, kind_) : !Lists(kHiddenSlots, slot, kind_);
        document_.SlotCommand[slot] = written;
        document_.Bound_Lbl[slot].Caption = TextOr(kOtherCaptions, slot, kind_, caption);
        document_.Bound_Lbl[slot].Visible = shown;
        document_.Setting_Lbl[slot].Visible = shown;
    }

    void PutHeading(const HeadingRow& row) {
        document_.Bound_Lbl[row.Number].Caption = TextOr(kOtherHeadings, row.Number, kind_, row.Caption);
    }

  private:
    ScriptDocument& document_;
    Game kind_;
};

}  // namespace

void FillCommandTable(ScriptDocument& document, Game gameKind) {
    Filler filler(document, gameKind);
    for (const MovementRow& row : kMovementRows) {
        filler.Put(row.Slot, CommandOf(row, gameKind), row.Caption);
    }
    for (std::size_t i = 0; i < std::size(kWeaponRows); ++i) {
        filler.Put(kWeaponRows[i].Slot, CellOf(kWeaponRows[i], gameKind), CellOf(kWeaponCaptionRows[i], gameKind));
    }
    for (const SystemRow& row : kSystemRows) {
        const bool unreal = gameKind == Game::Unreal;
        filler.Put(row.Slot, CommandOf(row, gameKind), unreal ? row.UnrealCaption : row.Caption);
    }
    for (const ActionRow& row : kActionRows) {
        const Cells cells = CellsOf(row, gameKind);
        filler.Put(row.Slot, cells.Command, cells.Caption);
    }
    for (const ItemRow& row : kItemRows) {
        const Cells cells = CellsOf(row, gameKind);
        filler.Put(row.Slot, cells.Command, cells.Caption);
    }
    for (const HeadingRow& row : kHeadingRows) {
        filler.PutHeading(row);
    }
}

}  // namespace lv
