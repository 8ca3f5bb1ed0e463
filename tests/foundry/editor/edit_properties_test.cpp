// What holds after any run of edits: the tables agree, a save loses nothing, and every state can be come back to.

#include <algorithm>
#include <iterator>
#include <random>

#include "foundry/document/bindings.h"
#include "foundry/document/slot_captions.h"
#include "foundry/editor/undo_history.h"
#include "foundry/writing/compose_script.h"
#include "tests/foundry/editor/fig_fixture.h"
#include "tests/foundry/made_up_scripts.h"
#include "tests/foundry/reading.h"
#include "tests/foundry/rounds.h"

namespace lv {
namespace {

constexpr CheckBox ScriptSettings::*kChecks[] = {&ScriptSettings::MLook_Chk, &ScriptSettings::JoyStick_Chk,
                                                 &ScriptSettings::Speed_Chk, &ScriptSettings::NoAim_Chk,
                                                 &ScriptSettings::LookSpring_Chk};
constexpr ListBox ScriptSettings::*kLists[] = {&ScriptSettings::fov_Cbo,         &ScriptSettings::gamma_Cbo,
                                               &ScriptSettings::viewsize_Cbo,    &ScriptSettings::cl_bob_Cbo,
                                               &ScriptSettings::m_yaw_Cbo,       &ScriptSettings::cl_yawspeed_Cbo,
                                               &ScriptSettings::v_kickpitch_Cbo, &ScriptSettings::MouseSensitivity_Cbo};

/// A user who edits by chance, takes back, repeats and saves, and what the script was at each step.
class Editing {
  public:
    Editing(Fig_Frm& form, unsigned seed) : form_(form), document_(form.Document), random_(seed) {
        StartHistory(form);
        states_ = {Written()};
        firstCells_ = form.History.State;
    }

    void Step() {
        switch (Below(10)) {
            case 0:
                Undo();
                break;
            case 1:
                Redo();
                break;
            case 2:
                if (Below(6) == 0) {
                    document_.ScriptClean = true;
                    NoteSaved(form_);
                }
                break;
            default:
                Edit();
                NoteEdit(form_);
                Keep();
        }
        CheckState();
    }

    void CheckTables() {
        for (KeyIndex key = 0; key < kKeyCount; ++key) {
            const auto index = static_cast<std::size_t>(key);
            const std::vector<SlotNumber> rows = RowsOf(document_.KeyCaption[index]);
            if (document_.KeyBinding[index].empty()) {
                EXPECT_TRUE(rows.empty()) << key;
            } else {
                ASSERT_EQ(rows.size(), 1U) << key;
                EXPECT_EQ(document_.SlotCommand[rows.front()], document_.KeyBinding[index]) << key;
            }
        }
    }

    void CheckSave() {
        const Text written = Written();
        EXPECT_EQ(ComposeScript(ReadScript(document_.Dialect, written), kScriptDay), written);
    }

    /// Back to the file, and from there to the last edit.
    void CheckAllTheWay() {
        const std::vector<Text> cells = form_.History.State;
        const std::size_t here = form_.History.Position;
        while (form_.Undo_Cmd.Enabled) {
            Undo();
            CheckState();
        }
        EXPECT_EQ(form_.History.State, firstCells_);
        while (form_.Redo_Cmd.Enabled) {
            Redo();
            CheckState();
            if (form_.History.Position == here) {
                EXPECT_EQ(form_.History.State, cells);
            }
        }
        EXPECT_EQ(Written(), states_.back());
    }

  private:
    std::size_t Below(std::size_t count) { return random_() % count; }
    Text Word() {
        Text word;
        for (std::size_t left = 3 + Below(5); left > 0; --left) {
            word += static_cast<char>('a' + Below(26));
        }
        return word;
    }
    Text Written() { return ComposeScript(document_, kScriptDay); }

    /// Some edits change nothing: a row without keys is cleared, a value is chosen again.
    void Keep() {
        if (form_.History.Position == form_.History.Edits.size()) {
            states_.resize(form_.History.Position);
            states_.push_back(Written());
        }
    }

    void Undo() {
        if (form_.Undo_Cmd.Enabled) {
            Undo_Cmd_Click(form_);
            EXPECT_EQ(document_.ScriptClean, form_.History.Position == form_.History.CleanPosition);
        }
    }

    void Redo() {
        if (form_.Redo_Cmd.Enabled) {
            Redo_Cmd_Click(form_);
            EXPECT_EQ(document_.ScriptClean, form_.History.Position == form_.History.CleanPosition);
        }
    }

    void CheckState() {
        ASSERT_LT(form_.History.Position, states_.size());
        EXPECT_EQ(Written(), states_[form_.History.Position]);
    }

    std::vector<SlotNumber> RowsOf(const Text& caption) {
        std::vector<SlotNumber> rows;
        std::ranges::copy_if(SlotNumbers(), std::back_inserter(rows), [&](SlotNumber slot) {
            return Join(" : ", document_.Setting_Lbl[slot].Caption, " : ").find(Join(" : ", caption, " : ")) !=
                   Text::npos;
        });
        return rows;
    }

    void Edit() {
        const KeyIndex key = SomeKey();
        switch (Below(9)) {
            case 0:
                UnbindKey(document_, form_, key);
                break;
            case 1:
                ClearSlotKeys(document_, form_, FilledRow());
                break;
            case 2:
                ChangeSetting();
                break;
            case 3:
                TypeName();
                break;
            case 4:
                AddSomeAlias();
                break;
            case 5:
                AddLine();
                break;
            case 6:
                FillExtra();
                break;
            default:
                BindKey(document_, form_, key, FilledRow());
        }
    }

    /// But for the two that an ini spells as no key's name, or as another's.
    KeyIndex SomeKey() {
        const auto key = static_cast<KeyIndex>(Below(kKeyCount));
        const bool misread = document_.Dialect.GameKind == Game::Unreal && (key == 62 || key == 93);
        return misread ? KeyIndex{1} : key;
    }

    SlotNumber FilledRow() {
        std::vector<SlotNumber> rows;
        std::ranges::copy_if(SlotNumbers(), std::back_inserter(rows), [&](SlotNumber slot) {
            return !document_.SlotCommand[slot].empty() && document_.Bound_Lbl[slot].Visible && HasPage(slot);
        });
        return rows[Below(rows.size())];
    }

    /// Rows of the other games have commands too, which this one's reader drops.
    bool HasPage(SlotNumber slot) {
        switch (document_.Dialect.GameKind) {
            case Game::Quake:
                return slot < 900 || slot / 100 == 10;
            case Game::Hexen2:
            case Game::Heretic2:
                return slot < 1000;
            case Game::HalfLife:
                return slot < 1000 || slot > 1100;
            default:
                return slot < 900 || slot > 1100;
        }
    }

    void AddLine() {
        ScriptSection& section = document_.Sections[Below(document_.Sections.size())];
        if (SameText(section.Name, "[engine.input]")) {
            return;  // a line there is a key's, or none
        }
        section.Text += Join(section.Text.empty() ? "" : "\r\n", "x_", Word(), " 1");
        Edited(form_);
    }

    void ChangeSetting() {
        if (Below(2) == 0) {
            CheckBox& box = document_.*kChecks[Below(std::size(kChecks))];
            box.Value = 1 - box.Value;
        } else {
            ListBox& list = document_.*kLists[Below(std::size(kLists))];
            list.ListIndex = static_cast<int>(Below(list.Items.size()));
        }
        Edited(form_);
    }

    void TypeName() {
        if (Below(4) == 0) {
            document_.Name_Txt.Text = Word();
        } else {
            document_.Name_Txt.Text += static_cast<char>('a' + Below(26));
        }
        Edited(form_);
    }

    void AddSomeAlias() {
        const Text name = Word();
        const Text body = Word();
        const bool added = document_.Dialect.GameKind == Game::Unreal
                               ? AddAlias(document_, "", Join("(Command=\"", body, "\",Alias=", name, ")"))
                               : AddAlias(document_, name, body);
        if (added) {
            Edited(form_);
        }
    }

    void FillExtra() {
        for (SlotNumber slot = kExtras.First; slot <= kExtras.Last; ++slot) {
            if (document_.Bound_Lbl[slot].Caption.empty()) {
                const Text command = Join("echo ", Word());
                CaptionSlot(document_, form_, slot, command);
                document_.SlotCommand[slot] = command;
                Edited(form_);
                return;
            }
        }
    }

    Fig_Frm& form_;
    ScriptDocument& document_;
    std::mt19937 random_;
    std::vector<Text> states_;  // of the script, a number of edits each
    std::vector<Text> firstCells_;
};

constexpr ScriptDialect kDialects[] = {kQuakeDialect,  kQuakeWorldDialect, kHexen2Dialect,   kQuake2Dialect,
                                       kUnrealDialect, kSinDialect,        kHeretic2Dialect, kHalfLifeDialect};

class EditProperties : public FigTest, public testing::WithParamInterface<std::size_t> {
  protected:
    void ReadMadeUp(MadeUpScripts& madeUp) {
        const ScriptDialect& dialect = kDialects[GetParam()];
        form.Document = MakeScriptDocument(dialect);
        ReadInto(form.Document, madeUp.Next(dialect), form);
        form.Document.ScriptClean = true;
    }
};

TEST_P(EditProperties, TablesAgreeAndSavesAndUndoLoseNothing) {
    const auto seed = static_cast<unsigned>(GetParam());
    MadeUpScripts madeUp(seed);
    constexpr int kScripts = Rounds(16);
    constexpr int kSteps = 60;
    for (unsigned script = 0; script < kScripts && !HasFailure(); ++script) {
        ReadMadeUp(madeUp);
        Editing editing(form, 100 * seed + script);
        for (int step = 0; step < kSteps && !HasFailure(); ++step) {
            editing.Step();
        }
        editing.CheckTables();
        editing.CheckSave();
        editing.CheckAllTheWay();
        editing.CheckTables();
    }
}

INSTANTIATE_TEST_SUITE_P(OfEveryKind, EditProperties, testing::Range<std::size_t>(0, std::size(kDialects)));

}  // namespace
}  // namespace lv
