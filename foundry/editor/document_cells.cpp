#include "foundry/editor/document_cells.h"

#include <type_traits>
#include <utility>

#include "foundry/editor/cell_codec.h"
#include "foundry/editor/fig_frm.h"

namespace lv {

namespace {

class CellReader {
  public:
    explicit CellReader(const std::function<void(std::uint32_t, TextView, CellUse)>& see) : see_(see) {}

    void Cell(const Text& text, CellUse use = CellUse::Value) { see_(cell_++, text, use); }

    /// A cell of several values, which `exchange` names to a CellSaver or a CellLoader.
    template <class Exchange>
    void Packed(Exchange exchange, CellUse use = CellUse::Value) {
        packed_.clear();
        CellSaver saver(packed_);
        exchange(saver);
        see_(cell_++, packed_, use);
    }

  private:
    const std::function<void(std::uint32_t, TextView, CellUse)>& see_;
    std::uint32_t cell_ = 0;
    Text packed_;
};

class CellWriter {
  public:
    explicit CellWriter(const std::map<std::uint32_t, TextView>& texts) : texts_(texts) {}

    bool WroteAliases = false;

    void Cell(Text& text, CellUse use = CellUse::Value) {
        if (const TextView* const given = Next(use)) {
            text = *given;
        }
    }

    template <class Exchange>
    void Packed(Exchange exchange, CellUse use = CellUse::Value) {
        if (const TextView* const given = Next(use)) {
            CellLoader loader(*given);
            exchange(loader);
        }
    }

  private:
    /// What the next cell is given, if anything.
    const TextView* Next(CellUse use) {
        const auto given = texts_.find(cell_++);
        if (given == texts_.end()) {
            return nullptr;
        }
        WroteAliases = WroteAliases || use == CellUse::Aliases;
        return &given->second;
    }

    const std::map<std::uint32_t, TextView>& texts_;
    std::uint32_t cell_ = 0;
};

constexpr CheckBox ScriptSettings::*kChecks[] = {
    &ScriptSettings::NoColors_Chk,    &ScriptSettings::MLook_Chk,       &ScriptSettings::JoyStick_Chk,
    &ScriptSettings::LookStrafe_Chk,  &ScriptSettings::LookSpring_Chk,  &ScriptSettings::Speed_Chk,
    &ScriptSettings::NoAim_Chk,       &ScriptSettings::ShowTurtle_Chk,  &ScriptSettings::ShowRAM_Chk,
    &ScriptSettings::ShowPause_Chk,   &ScriptSettings::InvertMouse_Chk, &ScriptSettings::Q2_EnableCD_Chk,
    &ScriptSettings::Q2_WaveOnly_Chk, &ScriptSettings::Unbindall_Chk,
};

constexpr TextBox ScriptSettings::*kBoxes[] = {
    &ScriptSettings::Name_Txt,
    &ScriptSettings::Rate_Txt,
    &ScriptSettings::UnrealTeamName_Txt,
    &ScriptSettings::UnrealPassword_Txt,
};

constexpr ListBox ScriptSettings::*kLists[] = {
    &ScriptSettings::Sex_Cbo,
    &ScriptSettings::Skin_Cbo,
    &ScriptSettings::PlayerClass_Cbo,
    &ScriptSettings::Handed_Cbo,
    &ScriptSettings::Crosshair_Cbo,
    &ScriptSettings::CrossHairColor_Cbo,
    &ScriptSettings::snd_mixahead_Cbo,
    &ScriptSettings::bgmvolume_Cbo,
    &ScriptSettings::volume_Cbo,
    &ScriptSettings::cl_backspeed_Cbo,
    &ScriptSettings::cl_forwardspeed_Cbo,
    &ScriptSettings::cl_sidespeed_Cbo,
    &ScriptSettings::cl_bob_Cbo,
    &ScriptSettings::cl_bobcycle_Cbo,
    &ScriptSettings::gamma_Cbo,
    &ScriptSettings::cl_bobup_Cbo,
    &ScriptSettings::cl_pitchspeed_Cbo,
    &ScriptSettings::cl_rollangle_Cbo,
    &ScriptSettings::cl_rollspeed_Cbo,
    &ScriptSettings::cl_yawspeed_Cbo,
    &ScriptSettings::fov_Cbo,
    &ScriptSettings::m_filter_Cbo,
    &ScriptSettings::m_forward_Cbo,
    &ScriptSettings::m_pitch_Cbo,
    &ScriptSettings::m_yaw_Cbo,
    &ScriptSettings::m_side_Cbo,
    &ScriptSettings::scr_centerspeed_Cbo,
    &ScriptSettings::scr_conspeed_Cbo,
    &ScriptSettings::MouseSensitivity_Cbo,
    &ScriptSettings::v_kickpitch_Cbo,
    &ScriptSettings::v_kickroll_Cbo,
    &ScriptSettings::v_kicktime_Cbo,
    &ScriptSettings::viewsize_Cbo,
    &ScriptSettings::vidmode_Cbo,
};

constexpr int kNoTypedRow = -1;

int TypedRowOf(const Fig_Frm& form, const ListBox& list) {
    const auto row = form.TypedRows.find(&list);
    return row == form.TypedRows.end() ? kNoTypedRow : row->second;
}

void SetTypedRow(Fig_Frm& form, const ListBox& list, int row) {
    if (row == kNoTypedRow) {
        form.TypedRows.erase(&list);
    } else {
        form.TypedRows[&list] = row;
    }
}

/// Which row the buttons move is no part of the script.
constexpr ListBox ScriptSettings::*kOrderedLists[] = {
    &ScriptSettings::WeaponsAvailable_Lst,
    &ScriptSettings::WeaponsPriority_Lst,
};

template <class List, class Visitor>
void VisitOrderedList(List& list, Visitor& visit) {
    visit.Packed([&](auto& cell) {
        cell.Value(list.Items);
        if constexpr (!std::is_const_v<List>) {
            list.ListIndex = list.ListIndex < static_cast<Index>(list.Items.size()) ? list.ListIndex : -1;
        }
    });
}

/// What is selected stands last, beside the rows that come and go there: a change of both is a short one.
template <class Form, class List, class Visitor>
void VisitList(Form& form, List& list, Visitor& visit) {
    visit.Packed([&](auto& cell) {
        int typedRow = TypedRowOf(form, list);
        cell.Value(list.Items);
        cell.Value(list.ListIndex);
        cell.Value(list.Enabled);
        cell.Value(typedRow);
        if constexpr (!std::is_const_v<Form>) {
            SetTypedRow(form, list, typedRow);
        }
    });
}

template <class Form, class Visitor>
void VisitSettings(Form& form, Visitor& visit) {
    auto& document = form.Document;
    for (const auto box : kBoxes) {
        visit.Cell((document.*box).Text, CellUse::Typed);
    }
    for (const auto check : kChecks) {
        visit.Packed([&](auto& cell) { cell.Value((document.*check).Value); });
    }
    for (auto& label : document.PlayerColor_Lbl) {
        visit.Packed([&](auto& cell) {
            cell.Value(label.BackColor);
            cell.Value(label.Tag);
        });
    }
    for (const auto list : kLists) {
        VisitList(form, document.*list, visit);
    }
    for (const auto list : kOrderedLists) {
        VisitOrderedList(document.*list, visit);
    }
    VisitList(form, document.Skin_Fil, visit);
    for (auto& list : document.UnrealAudio_Cbo) {
        VisitList(form, list, visit);
    }
    for (auto& list : document.PlayerPawn_Cbo) {
        VisitList(form, list, visit);
    }
    for (auto& list : document.MouseBind_Cbo) {
        VisitList(form, list, visit);
    }
}

template <class Form, class Visitor>
void VisitBindings(Form& form, Visitor& visit) {
    auto& document = form.Document;
    for (auto& binding : document.KeyBinding) {
        visit.Cell(binding);
    }
    for (const SlotNumber slot : SlotNumbers()) {
        visit.Cell(document.SlotCommand[slot]);
        visit.Cell(document.Bound_Lbl[slot].Caption);
        visit.Cell(document.Bound_Lbl[slot].ToolTip);
        visit.Cell(document.Setting_Lbl[slot].Caption);
    }
    for (SlotNumber slot = kMessages.First; slot <= kMessages.Last; ++slot) {
        visit.Packed([&](auto& cell) { cell.Value(document.Say_Team_Chk[slot].Value); });
    }
    visit.Packed([&](auto& cell) {
        for (auto& label : form.Key_Lbl) {
            cell.Value(label.BackColor);
        }
    });
}

void FitSelection(ScriptDocument& document) {
    ListBox& list = document.Section_Cbo;
    if (list.ListIndex < 0 || list.ListIndex >= static_cast<Index>(list.Items.size())) {
        list.ListIndex = list.Visible && !list.Items.empty() ? 0 : -1;
    }
}

/// Their names ahead of their texts: a writer has the sections there by then.
template <class Form, class Visitor>
void VisitSections(Form& form, Visitor& visit) {
    auto& document = form.Document;
    visit.Packed([&](auto& cell) {
        std::vector<Text> names;
        for (const ScriptSection& section : document.Sections) {
            names.push_back(section.Name);
        }
        cell.Value(names);
        cell.Value(document.Section_Cbo.Items);
        if constexpr (!std::is_const_v<Form>) {
            document.Sections.resize(names.size());
            for (std::size_t i = 0; i < names.size(); ++i) {
                document.Sections[i].Name = std::move(names[i]);
            }
            FitSelection(document);
        }
    });
    for (auto& section : document.Sections) {
        visit.Cell(section.Text, CellUse::Typed);
    }
}

/// All cells. The sections' texts stand last: there are as many of them as the script has.
template <class Form, class Visitor>
void VisitCells(Form& form, Visitor& visit) {
    VisitBindings(form, visit);
    VisitSettings(form, visit);
    visit.Packed([&](auto& cell) { cell.Value(form.Document.AliasTable); }, CellUse::Aliases);
    VisitSections(form, visit);
}

}  // namespace

void ReadCells(const Fig_Frm& form, const std::function<void(std::uint32_t cell, TextView text, CellUse use)>& see) {
    CellReader reader(see);
    VisitCells(form, reader);
}

bool WriteCells(Fig_Frm& form, const std::map<std::uint32_t, TextView>& texts) {
    CellWriter writer(texts);
    VisitCells(form, writer);
    return writer.WroteAliases;
}

}  // namespace lv
