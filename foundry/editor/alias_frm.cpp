#include "foundry/editor/alias_frm.h"

#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "foundation/question_box.h"
#include "foundry/document/bindings.h"
#include "foundry/editor/addable_commands.h"
#include "foundry/editor/alias_boxes.h"
#include "foundry/editor/aliases_page.h"
#include "foundry/editor/text_column.h"
#include "foundry/reading/script_reader.h"

namespace lv {

namespace {

constexpr int kCommandTabs = 2;

bool IsUnreal(const Alias_Frm& form) {
    return form.Editor.GameKind() == Game::Unreal;
}

char Separator(const Alias_Frm& form) {
    return IsUnreal(form) ? '|' : ';';
}

void FillCommands(Alias_Frm& form) {
    UserInterface& user = form.run.User;
    const TextColumn column(user, kCommandTabs * TabWidth(user) + user.TextWidth(".."));
    for (const AddableCommand& row : AddableCommands(form.Editor.Document)) {
        form.AddableCommands_Cbo.Items.push_back(Join(column.Padded(row.Command), row.Description));
    }
}

void FillCaptions(Alias_Frm& form) {
    form.Caption = "Alias Editor";
    form.AliasName_Lbl.Caption = "Alias &Name";
    form.AliasBody_Lbl.Caption = "Co&mmands of the Alias";
    form.AddableCommands_Lbl.Caption = "Commands to Add";
    form.AddCommand_Cmd.Caption = "&Add";
    form.AddCommand_Cmd.ToolTip = "Add the selected command to the alias";
    form.Bindable_Opt.Caption = "&Bindable";
    form.Bindable_Opt.ToolTip = "Check here to bind keys to this alias";
    form.OK_Cmd.Caption = "&OK";
    form.Cancel_Cmd.Caption = "&Cancel";
}

/// The typed commands in one line, parted by one separator each; empty if there is no command.
Text BodyOf(const Alias_Frm& form) {
    const char separator = Separator(form);
    Text body;
    for (const char c : form.AliasBody_Txt.Text) {
        const bool parts = c == '\r' || c == '\n' || c == separator;
        if (!parts || !body.ends_with(separator)) {
            body += parts ? separator : c;
        }
    }
    if (body.ends_with(separator)) {
        body.pop_back();
    }
    if (body.find_first_not_of(Join(Blank, TextView(&separator, 1))) == Text::npos) {
        return {};
    }
    if (!IsUnreal(form)) {
        return body;
    }
    Text spaced;
    for (const char c : body) {
        spaced += c;
        spaced.append(c == separator ? 1 : 0, ' ');
    }
    return spaced;
}

/// Whether a script gives the alias back as it was written. An ini's line says both, and its own marks end them.
bool CanBeWritten(const Alias_Frm& form, const Alias& alias) {
    if (!IsUnreal(form)) {
        return !alias.Name.empty() && !Holds(alias.Body, DoubleQuote) && LineHoldsAlias(alias.Name, alias.Body);
    }
    return !alias.Name.empty() && alias.Name != "none" && alias.Name.find(')') == Text::npos &&
           !Holds(alias.Body, DoubleQuote) && !Holds(LowerCase(alias.Body), "alias=");
}

bool TellNotSaved(Alias_Frm& form) {
    AskUser(form.run, "Internal Error", "Unable to save alias.");
    return false;
}

bool TellNameExists(Alias_Frm& form) {
    AskUser(form.run, "Alias Name Exists", "There is an existing alias with this name.");
    return false;
}

/// False if it was not added, which the user was told.
bool AddNew(Alias_Frm& form, const Alias& alias) {
    ScriptDocument& document = form.Editor.Document;
    if (FindAlias(document, alias.Name).Found) {
        return TellNameExists(form);
    }
    const Text line = Join("(Command=\"", alias.Body, "\",Alias=", alias.Name, ")");
    if (!CanBeWritten(form, alias) || !AddAlias(document, alias.Name, IsUnreal(form) ? line : alias.Body)) {
        return TellNotSaved(form);
    }
    return true;
}

/// The same for the alias that was there.
bool ReplaceOld(Alias_Frm& form, const Alias& alias) {
    ScriptDocument& document = form.Editor.Document;
    const AliasPlace old = FindAlias(document, *form.EditedName);
    if (!old.Found || !CanBeWritten(form, alias)) {
        return TellNotSaved(form);
    }
    const AliasPlace other = FindAlias(document, alias.Name);
    if (other.Found && other.Place != old.Place) {
        return TellNameExists(form);
    }
    document.AliasTable.Replace(old.Place, alias);
    return true;
}

/// Brings the alias's box in line with what was chosen, and tells whether it has one then.
bool SettleBox(Alias_Frm& form, SlotNumber box, const Alias& alias) {
    if (box == kNoSlot) {
        return alias.Bound && PutIntoBox(form.Editor, alias.Name);
    }
    if (!alias.Bound && TakeOutOfBox(form.Editor, box)) {
        return false;
    }
    RenameBox(form.Editor, box, alias.Name);
    return true;
}

}  // namespace

Alias_Frm::Alias_Frm(Fig_Frm& owner, std::optional<std::size_t> edited)
    : ModalWindow(owner.run, "Alias_Frm"), Editor(owner) {
    FillCaptions(*this);
    FillCommands(*this);
    OK_Cmd.Default = true;
    const AliasList& aliases = owner.Document.AliasTable;
    if (!edited) {
        return;
    }
    EditedName.emplace();
    if (*edited < aliases.AliasCount()) {
        const Alias& alias = aliases[*edited];
        EditedName = alias.Name;
        AliasName_Txt.Text = alias.Name;
        AliasBody_Txt.Text = alias.Body;
        Bindable_Opt.Value = alias.Bound ? 1 : 0;
    }
}

void Alias_AddCommand_Cmd_Click(Alias_Frm& form) {
    if (!form.AddableCommands_Cbo.HasSelection()) {
        return;
    }
    // The command itself: where it has no separator, the row's first field would hold the description too.
    const auto row = static_cast<std::size_t>(form.AddableCommands_Cbo.ListIndex);
    const char separator = Separator(form);
    const Text command = AddableCommands(form.Editor.Document)[row].Command;
    Text& body = form.AliasBody_Txt.Text;
    if (body.ends_with(separator)) {
        body.pop_back();
    }
    if (!body.empty()) {
        body += separator;
    }
    body += TextView(command).substr(0, command.find(separator));
}

void Alias_OK_Cmd_Click(Alias_Frm& form) {
    const Alias alias = {
        .Bound = form.Bindable_Opt.Value != 0, .Name = LowerCase(Trim(form.AliasName_Txt.Text)), .Body = BodyOf(form)};
    if (alias.Body.empty()) {
        AskUser(form.run, "Alias Not Done", "No commands were specified in the alias.");
        return;
    }
    ScriptDocument& document = form.Editor.Document;
    if (!(form.EditedName ? ReplaceOld(form, alias) : AddNew(form, alias))) {
        return;
    }
    const SlotNumber box = form.EditedName ? BoxOfAlias(document, *form.EditedName) : kNoSlot;
    const bool bound = SettleBox(form, box, alias);
    document.AliasTable[FindAlias(document, alias.Name).Place].Bound = bound;
    ShowAlias(form.Editor, alias.Name);
    Edited(form.Editor);
    form.Closed = true;
}

void Alias_Cancel_Cmd_Click(Alias_Frm& form) {
    form.Closed = true;
}

}  // namespace lv
