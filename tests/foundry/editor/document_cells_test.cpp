#include "foundry/editor/document_cells.h"

#include <fstream>
#include <set>

#include "tests/foundry/editor/fig_fixture.h"
#include "tests/support/test_paths.h"

namespace lv {
namespace {

Text Told(const CheckBox& box) {
    return std::to_string(box.Value);
}
Text Told(const TextBox& box) {
    return box.Text;
}
Text Told(const ColorLabel& label) {
    return Join(std::to_string(label.BackColor), "/", std::to_string(label.Tag));
}
Text Told(const ListBox& list) {
    Text told = std::to_string(list.ListIndex);
    for (const Text& item : list.Items) {
        told += Join("/", item);
    }
    return told;
}

// Each change in its ways: by turns they change each part of the control's value.
void Change(CheckBox& box, int /*way*/) {
    box.Value = 1 - box.Value;
}
void Change(TextBox& box, int /*way*/) {
    box.Text += "!";
}
void Change(ColorLabel& label, int way) {
    if (way == 0) {
        ++label.Tag;
    } else {
        --label.BackColor;
    }
}
void Change(ListBox& list, int way) {
    if (way == 0) {
        ++list.ListIndex;
    } else {
        list.Items.emplace_back("another");
    }
}

constexpr int kWays = 2;

/// One control, or the controls of an array, as the test changes and reads them.
struct ListedControl {
    const char* Name;
    std::size_t Places;
    std::function<void(ScriptSettings&, std::size_t place, int way)> Change_;
    std::function<Text(const ScriptSettings&, std::size_t place)> Told_;
};

template <class One>
ListedControl Listed(const char* name, One ScriptSettings::*control) {
    return {name, 1, [control](ScriptSettings& s, std::size_t, int way) { Change(s.*control, way); },
            [control](const ScriptSettings& s, std::size_t) { return Told(s.*control); }};
}

template <class One, std::size_t Count>
ListedControl Listed(const char* name, std::array<One, Count> ScriptSettings::*control) {
    return {name, Count, [control](ScriptSettings& s, std::size_t i, int way) { Change((s.*control)[i], way); },
            [control](const ScriptSettings& s, std::size_t i) { return Told((s.*control)[i]); }};
}

/// A list whose order is the setting: which row is selected is none.
ListedControl Ordered(const char* name, ListBox ScriptSettings::*list) {
    return {name, 1,
            [list](ScriptSettings& s, std::size_t, int way) { (s.*list).Items.push_back(std::to_string(way)); },
            [list](const ScriptSettings& s, std::size_t) {
                Text told;
                for (const Text& item : (s.*list).Items) {
                    told += Join("/", item);
                }
                return told;
            }};
}

#define LISTED(name) Listed(#name, &ScriptSettings::name)
#define ORDERED(name) Ordered(#name, &ScriptSettings::name)

const std::vector<ListedControl>& ListedControls() {
    static const std::vector<ListedControl> controls = {
        LISTED(Name_Txt),
        LISTED(PlayerColor_Lbl),
        LISTED(NoColors_Chk),
        LISTED(Sex_Cbo),
        LISTED(Skin_Cbo),
        LISTED(Skin_Fil),
        LISTED(Rate_Txt),
        LISTED(PlayerClass_Cbo),
        LISTED(Handed_Cbo),
        LISTED(Crosshair_Cbo),
        LISTED(CrossHairColor_Cbo),
        LISTED(MLook_Chk),
        LISTED(JoyStick_Chk),
        LISTED(LookStrafe_Chk),
        LISTED(LookSpring_Chk),
        LISTED(Speed_Chk),
        LISTED(NoAim_Chk),
        LISTED(ShowTurtle_Chk),
        LISTED(ShowRAM_Chk),
        LISTED(ShowPause_Chk),
        LISTED(InvertMouse_Chk),
        LISTED(Q2_EnableCD_Chk),
        LISTED(Q2_WaveOnly_Chk),
        LISTED(Unbindall_Chk),
        LISTED(snd_mixahead_Cbo),
        LISTED(bgmvolume_Cbo),
        LISTED(volume_Cbo),
        LISTED(cl_backspeed_Cbo),
        LISTED(cl_forwardspeed_Cbo),
        LISTED(cl_sidespeed_Cbo),
        LISTED(cl_bob_Cbo),
        LISTED(cl_bobcycle_Cbo),
        LISTED(gamma_Cbo),
        LISTED(cl_bobup_Cbo),
        LISTED(cl_pitchspeed_Cbo),
        LISTED(cl_rollangle_Cbo),
        LISTED(cl_rollspeed_Cbo),
        LISTED(cl_yawspeed_Cbo),
        LISTED(fov_Cbo),
        LISTED(m_filter_Cbo),
        LISTED(m_forward_Cbo),
        LISTED(m_pitch_Cbo),
        LISTED(m_yaw_Cbo),
        LISTED(m_side_Cbo),
        LISTED(scr_centerspeed_Cbo),
        LISTED(scr_conspeed_Cbo),
        LISTED(MouseSensitivity_Cbo),
        LISTED(v_kickpitch_Cbo),
        LISTED(v_kickroll_Cbo),
        LISTED(v_kicktime_Cbo),
        LISTED(viewsize_Cbo),
        LISTED(vidmode_Cbo),
        LISTED(UnrealTeamName_Txt),
        LISTED(UnrealPassword_Txt),
        LISTED(UnrealAudio_Cbo),
        LISTED(PlayerPawn_Cbo),
        LISTED(MouseBind_Cbo),
        ORDERED(WeaponsAvailable_Lst),
        ORDERED(WeaponsPriority_Lst),
    };
    return controls;
}

#undef LISTED
#undef ORDERED

/// The names that the header declares: what stands before the ";" of each line of the struct.
std::set<Text> DeclaredControls() {
    std::ifstream header(TestSourceDir() + "/foundry/tables/script_settings.h");
    EXPECT_TRUE(header);
    std::set<Text> names;
    Text line;
    while (std::getline(header, line) && line.find("struct ScriptSettings") != 0) {
    }
    while (std::getline(header, line) && line.find("};") != 0) {
        const std::size_t end = line.find(';');
        if (end != Text::npos) {
            const std::size_t begin = line.rfind(' ', end) + 1;
            names.insert(line.substr(begin, end - begin));
        }
    }
    return names;
}

class CellsTest : public FigTest {
  protected:
    void SetUp() override {
        Open(kQuakeDialect, "bind w +forward\nalias b b\n");
        StartHistory(form);
    }

    /// Whether the event's change is one edit, which can be taken back.
    void ExpectSeen(const Text& what, const std::function<void()>& change, const std::function<Text()>& told) {
        const Text before = told();
        const std::size_t edits = form.History.Edits.size();
        change();
        const Text after = told();
        ASSERT_NE(after, before) << what;
        NoteEdit(form);
        EXPECT_EQ(form.History.Edits.size(), edits + 1) << what;
        Undo_Cmd_Click(form);
        EXPECT_EQ(told(), before) << what;
        Redo_Cmd_Click(form);
        EXPECT_EQ(told(), after) << what;
    }
    void ExpectSeen(const Text& what, Text& text) {
        ExpectSeen(
            what, [&] { text += "!"; }, [&] { return text; });
    }
};

TEST_F(CellsTest, EverySettingThatChangesIsSeen) {
    for (const ListedControl& control : ListedControls()) {
        for (std::size_t place = 0; place < control.Places; ++place) {
            for (int way = 0; way < kWays; ++way) {
                form.History.Edits.clear();  // a box is typed into: what is typed would join
                form.History.Position = 0;
                ExpectSeen(
                    Join(control.Name, "(", std::to_string(place), ")"),
                    [&] { control.Change_(form.Document, place, way); },
                    [&] { return control.Told_(form.Document, place); });
            }
        }
    }
}

TEST_F(CellsTest, EverySettingThatIsDeclaredIsAmongThem) {
    std::set<Text> listed;
    for (const ListedControl& control : ListedControls()) {
        listed.insert(control.Name);
    }
    EXPECT_EQ(listed, DeclaredControls());
}

TEST_F(CellsTest, EveryKeyThatChangesIsSeen) {
    for (std::size_t key = 0; key < form.Document.KeyBinding.size(); ++key) {
        ExpectSeen(std::to_string(key), form.Document.KeyBinding[key]);
    }
}

TEST_F(CellsTest, EveryRowThatChangesIsSeen) {
    for (const SlotNumber slot : SlotNumbers()) {
        ExpectSeen(std::to_string(slot), form.Document.SlotCommand[slot]);
        ExpectSeen(std::to_string(slot), form.Document.Bound_Lbl[slot].Caption);
        ExpectSeen(std::to_string(slot), form.Document.Bound_Lbl[slot].ToolTip);
        ExpectSeen(std::to_string(slot), form.Document.Setting_Lbl[slot].Caption);
    }
    for (SlotNumber slot = 801; slot <= 813; ++slot) {
        int& value = form.Document.Say_Team_Chk[slot].Value;
        ExpectSeen(
            std::to_string(slot), [&] { value = 1; }, [&] { return std::to_string(value); });
    }
}

TEST_F(CellsTest, EveryColorOfAKeyIsSeen) {
    for (Index label = 0; label <= kLastKeyLabel; ++label) {
        Color& color = form.KeyLabelOf(label).BackColor;
        ExpectSeen(
            std::to_string(label), [&] { color = 0x123456; }, [&] { return std::to_string(color); });
    }
}

TEST_F(CellsTest, EverySectionThatChangesIsSeen) {
    form.Document.Sections.resize(3);
    StartHistory(form);
    for (ScriptSection& section : form.Document.Sections) {
        ExpectSeen("a section", section.Text);
    }
}

TEST_F(CellsTest, ASectionThatJoinsLaterIsSeenToo) {
    form.Document.Sections.emplace_back();
    form.Document.Sections.back().Text = "late";
    NoteEdit(form);
    EXPECT_EQ(form.History.Edits.size(), 1U);
    Undo_Cmd_Click(form);
    ASSERT_EQ(form.Document.Sections.size(), 1U);
    EXPECT_EQ(form.Document.Sections.back().Text, "");
    Redo_Cmd_Click(form);
    ASSERT_EQ(form.Document.Sections.size(), 2U);
    EXPECT_EQ(form.Document.Sections.back().Text, "late");
}

TEST_F(CellsTest, ASectionThatGoesIsSeenToo) {
    form.Document.Sections = {{.Name = "[A]", .Text = "a"}, {.Name = "[B]", .Text = "b"}, {.Name = "[C]", .Text = ""}};
    form.Document.Section_Cbo.Items = {"[A]", "[B]", "[C]"};
    form.Document.Section_Cbo.ListIndex = 2;
    form.Document.Section_Cbo.Visible = true;
    StartHistory(form);
    form.Document.Sections.resize(1);
    form.Document.Section_Cbo.Items.resize(1);
    NoteEdit(form);
    EXPECT_EQ(form.History.Edits.size(), 1U);
    Undo_Cmd_Click(form);
    ASSERT_EQ(form.Document.Sections.size(), 3U);
    EXPECT_EQ(form.Document.Sections[1].Name, "[B]");
    EXPECT_EQ(form.Document.Sections[1].Text, "b");
    EXPECT_EQ(form.Document.Sections[2].Name, "[C]");
    EXPECT_EQ(form.Document.Section_Cbo.Items.size(), 3U);
    Redo_Cmd_Click(form);
    ASSERT_EQ(form.Document.Sections.size(), 1U);
    EXPECT_EQ(form.Document.Sections[0].Text, "a");
    EXPECT_EQ(form.Document.Section_Cbo.ListIndex, 0);
}

TEST_F(CellsTest, TheNameOfASectionIsSeen) {
    ExpectSeen("a name", form.Document.Sections[0].Name);
}

TEST_F(CellsTest, ATextThatIsLongOrHasAnyByteComesBack) {
    Text all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    ListBox& list = form.Document.Skin_Cbo;
    list.Items = {"", all, Text(70000, 'x')};
    NoteEdit(form);
    list.Items.clear();
    NoteEdit(form);
    Undo_Cmd_Click(form);
    EXPECT_EQ(list.Items, (std::vector<Text>{"", all, Text(70000, 'x')}));
}

TEST_F(CellsTest, OnlyTheAliasesAreToldOf) {
    std::map<std::uint32_t, Text> kept;
    std::uint32_t aliases = 0;
    ReadCells(form, [&](std::uint32_t cell, TextView text, CellUse use) {
        kept[cell] = text;
        aliases = use == CellUse::Aliases ? cell : aliases;
    });
    EXPECT_FALSE(WriteCells(form, {{0, kept[0]}}));
    EXPECT_TRUE(WriteCells(form, {{aliases, kept[aliases]}}));
    EXPECT_FALSE(WriteCells(form, {}));
    EXPECT_EQ(form.Document.AliasTable.AliasCount(), 1U);
}

}  // namespace
}  // namespace lv
