// foundry/editor/fig_frm.h
//
// Setup Foundry's window. The script's own controls are the document's; this adds what is the window's alone.

#pragma once

#include <array>
#include <functional>
#include <map>
#include <memory>

#include "catalogs/catalog_lists.h"
#include "console/files/start_run.h"
#include "foundation/game.h"
#include "foundation/modal_window.h"
#include "foundation/window_services.h"
#include "foundry/document/script_document.h"
#include "foundry/document/script_view.h"
#include "foundry/editor/phun_names_frm.h"
#include "foundry/editor/undo_history.h"

namespace lv {

constexpr int kSaveTimerMilliseconds = 60000;

/// The pages of Main_Tab.
enum class EditorPage { Player, Bindings, Aliases, FreeForm, SaveAndExit };

/// The pages of Bindings_Tab.
enum class BindingsPage { Standard, System, Extended, Talking, Hexen2, Quake2, Ctf };

/// Label indexes of the keyboard's picture beyond the keys.
constexpr Index kRightShift = 149;  // 150 the right Ctrl, 151 the right Alt
constexpr Index kRightAlt = 151;
constexpr Index kFirstUnbindable = 200;  // Esc, Caps, PS, SL, NL
constexpr Index kLastKeyLabel = 204;
constexpr Index kFirstJoyLabel = 98;

struct KeyLabel : ColorLabel {
    bool Exists = false;
    int Top = 0;  // twips within its panel
    int Left = 0;
    int Width = 0;
    int Height = 0;
};

/// One of the two panels under the pages.
struct KeyPanel : Panel {
    int Left = 0;        // twips; far to the left while out of sight
    bool Front = false;  // of the two in one place, the one that is seen
};

/// What the pointer looks like during a drag.
enum class DragIcon { None, Refuse, Accept };

struct DragState {
    bool Dragging = false;
    KeyIndex Key = kNoKey;
    bool OverRow = false;         // over a row that takes the key
    SlotNumber Marked = kNoSlot;  // Setting_Lbl(Marked) is in the system's highlight colours
    DragIcon Icon = DragIcon::None;
};

struct Fig_Frm : ModalWindow, ScriptView {
    Fig_Frm(Run& owner, CatalogLists& lists);

    CatalogLists& Lists;
    ScriptDocument Document;

    WindowPlacement Placement;
    /// The start of a launch with this script as it is edited. Empty: there is no main window.
    std::function<StartRequest(const GivenScript&)> StartOfLaunch;

    std::function<TwipsSize()> Measure;  // of the window on the screen; without a form it is placed as a point
    bool Loaded = false;

    TabSet Main_Tab;      // EditorPage
    TabSet Bindings_Tab;  // BindingsPage

    // The keys and their picture
    KeyPanel Keyboard_Fra;
    KeyPanel Joy_Fra;
    bool JoyChosen = false;  // the panel that the user last chose
    std::array<CommandButton, 2> JoyToggle_Cmd;
    std::array<KeyLabel, kLastKeyLabel + 1> Key_Lbl;
    std::array<ColorLabel, 11> ColorCode_Lbl;  // the legend
    ListBox Device_Cbo;
    Control Device_Pic;
    Text DevicePicture;       // path of its bitmap; empty: none
    bool DeviceTold = false;  // that a bitmap is missing
    DragState Drag;

    // Bindings
    Label Label7;
    Label Some_Lbl;
    CommandButton AddMessage_Cmd, EditMessage_Cmd, DeleteMessage_Cmd;
    CommandButton AddExtraBinding_Cmd, EditExtraBinding_Cmd, DeleteExtraBinding_Cmd;
    CommandButton AddBoundScript_Cmd, EditoundScript_Cmd, DeleteBoundScript_Cmd;
    Text MessageResult;
    Text ExtraBindingResult;

    // Aliases
    ListBox Alias_Lst;
    CommandButton AddCustomAlias_Cmd, EditAlias_Cmd, DeleteAlias_Cmd, AddStandardAlias_Cmd;
    ListBox StdAliases_Cbo;

    // Player and settings
    Label Label4, Label6, Label8;
    Label Sex_Lbl, Skin_Lbl;
    CommandButton SelectNoSkin_Cmd;
    CommandButton ViewCustomLetters_Cmd;
    Control Name_Pic;
    std::array<ColorLabel, 16> NamePosition_Lbl;  // 1 to 15; 0 is not in use
    Panel Checkables_Pic, Other_Pic, Screen_Pic, Speeds_Pic, Mouse_Pic, Angle_Pic, Bob_Pic, Sound_Pic;
    Panel UnrealAudio_Pic, PlayerPawn_Pic, WeaponPriority_Pic;
    std::array<CommandButton, 2> SelectWeapon_Cmd;
    std::array<CommandButton, 2> WeaponMove_Cmd;
    std::map<const ListBox*, int> TypedRows;  // the row of a list that the user typed himself

    // Save and exit
    CheckBox AutoSaveEnable_Chk;
    ListBox Minutes_Cbo;
    Label Label2, Label3;
    CheckBox AutoSaveWarning_Chk;
    std::array<CommandButton, 8> View_Cmd;  // 6 and 7 are in use
    CheckBox ExitOnSave_Chk;
    CommandButton UnloadSF_Cmd;
    CommandButton ShowChanges_Cmd, Versions_Cmd, FileOrder_Cmd, AliasGraph_Cmd, ScriptCheck_Cmd;
    bool Save_Tmr_Enabled = false;
    Index MinutesSinceAutoSave = 0;
    bool AutoSaveRunning = false;
    bool AutoSavePass = false;  // an auto save asks or writes: the minutes that pass meanwhile only count

    // Beside what the window has always had
    TextBox Find_Txt;
    Label Find_Lbl;  // what was found
    CommandButton FindNext_Cmd;
    std::size_t FoundPlace = 0;  // which of all that was found is shown
    bool FoundTaken = false;     // the keyboard was led to it
    CommandButton Undo_Cmd, Redo_Cmd;
    Label Hint_Lbl;                   // what to do next
    Text FoundControl;                // the form gives it the keyboard, and clears this
    SlotNumber CaptureRow = kNoSlot;  // this row waits for a key
    KeyIndex PickedKey = kNoKey;      // this key waits for a row

    PhunNames_Frm PhunNames;
    UndoHistory History;

    KeyLabel& KeyLabelOf(Index label) { return Key_Lbl[static_cast<std::size_t>(label)]; }
    [[nodiscard]] Game GameKind() const { return Document.Dialect.GameKind; }

    // ScriptView
    void PaintKey(Index label, Color backColor) override;
    void ClearKeyToolTip(KeyIndex key) override;
    int TextWidth(TextView text) override;
    int BoundLabelWidth(SlotNumber slot) override;
};

/// A change by the user. Ignored while the reader fills the controls.
void Edited(Fig_Frm& form);

}  // namespace lv
