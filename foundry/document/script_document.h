// foundry/document/script_document.h
//
// One script in memory: what the reader fills, the editor's pages show and change, and the writer writes.

#pragma once

#include <array>
#include <optional>
#include <vector>

#include "foundation/controls.h"
#include "foundation/game.h"
#include "foundry/document/alias_list.h"
#include "foundry/tables/keys.h"
#include "foundry/tables/script_settings.h"
#include "foundry/tables/slots.h"

namespace lv {

/// The dialect of a script: that of the selected game, never that of the script's content.
struct ScriptDialect {
    Game GameKind = Game::None;
    Dialect ScriptFamily = Dialect::None;
    bool IsQuakeWorld = false;
    bool IsMissionPack = false;
    char DecimalSeparator = '.';  // the locale's
};

struct ScriptSection {
    lv::Text Name;  // the bracket line as read; empty for the lines before any
    lv::Text Text;  // the free-form lines, joined by CR LF: FreeForm_Txt(i)
};

/// How an empty command stands in KeyBinding: two double quotes.
constexpr TextView kEmptyCommand = "\"\"";

struct ScriptDocument : ScriptSettings {
    ScriptDialect Dialect;

    Text CurrentScriptPath;
    Text CurrentScriptDirectory;  // with the trailing "\"
    Text Caption;                 // the editor's window: "Setup Foundry - [c:/quake/id1/my.cfg]"

    // Keys and slots. Only the functions of foundry/document/bindings.h change KeyBinding and Setting_Lbl.
    KeyTexts KeyCaption;
    KeyTexts KeyBinding;  // empty: the key is free
    SlotArray<Text> SlotCommand;
    SlotArray<Label, kFirstHeading, kLastHeading> Bound_Lbl;  // what is bound; headings too
    SlotArray<Label> Setting_Lbl;                             // the captions of its keys, joined by " : "
    SlotArray<CheckBox, kMessages.First, kMessages.Last> Say_Team_Chk;

    AliasList AliasTable;

    std::vector<ScriptSection> Sections;
    ListBox Section_Cbo;                                 // the sections' names, shown for Unreal only
    std::array<Text, 51> WeaponPriority;                 // as read; empty or "None" is a free place
    TabSet Options_Tab{{}, std::vector<TabPage>(5), 0};  // 3 "&QuakeWorld Skins", 4 "&Rate"

    std::optional<Text> FileText;  // as it was read or last written; none of a file that takes long to read

    Text BackupDue;     // the path of a foreign script that there is no copy of yet
    Text FollowedLink;  // where the user has let a save follow a link, out of the game and their home

    bool Foreign = true;         // neither this program's banner nor its section was read
    bool ScriptClean = true;     // equals the file
    bool ScriptLoading = false;  // the reader is at work: the pages ignore changes
};

/// A document with all tables as they are before a script is read: value lists, key captions, commands and captions
/// of the slots. Nothing is bound, no alias, no section.
ScriptDocument MakeScriptDocument(const ScriptDialect& dialect);

}  // namespace lv
