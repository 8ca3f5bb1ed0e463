#include "foundry/editor/aliases_page.h"

#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundry/document/bindings.h"
#include "foundry/editor/alias_boxes.h"
#include "foundry/editor/alias_frm.h"
#include "foundry/editor/standard_aliases.h"
#include "foundry/editor/text_column.h"

namespace lv {

namespace {

constexpr const char* kTitle = "Setup Foundry";
constexpr int kNameTabs = 3;

TextColumn NameColumn(Fig_Frm& form) {
    return {form.run.User, kNameTabs * TabWidth(form.run.User)};
}

Text AliasLine(const Alias& alias, const TextColumn& names) {
    return Join(Blank, alias.Bound ? "[X]" : "[_]", Blank, names.Padded(alias.Name), alias.Body);
}

/// Whether Alias_Lst shows the alias in its place.
bool IsListed(Fig_Frm& form, std::size_t place) {
    const std::vector<Text>& lines = form.Alias_Lst.Items;
    return place < lines.size() && lines[place] == AliasLine(form.Document.AliasTable[place], NameColumn(form));
}

/// The name of the selected alias; empty if the table has it no more.
Text SelectedName(const Fig_Frm& form) {
    const auto place = static_cast<std::size_t>(form.Alias_Lst.ListIndex);
    const AliasList& aliases = form.Document.AliasTable;
    return place < aliases.AliasCount() ? aliases[place].Name : Text();
}

bool TellNoSelection(Fig_Frm& form) {
    if (form.Alias_Lst.HasSelection()) {
        return false;
    }
    AskUser(form.run, kTitle, "No alias is selected.");
    return true;
}

bool MayOverwrite(Fig_Frm& form, TextView name) {
    return AskUser(form.run, "Alias Exists",
                   Join("Setup Foundry found an existing alias titled '", name, "'. Overwrite this alias?"),
                   "&Yes,&No") == 0;
}

void ReplaceBody(Fig_Frm& form, std::size_t place, const Text& body) {
    const bool listed = IsListed(form, place);
    form.Document.AliasTable[place].Body = body;
    if (!listed) {
        AskUser(form.run, "Non-Critical Error", "Could not find original alias in the Alias List.");
    }
}

}  // namespace

void FillAliasList(Fig_Frm& form) {
    const AliasList& aliases = form.Document.AliasTable;
    const TextColumn names = NameColumn(form);
    ListBox& list = form.Alias_Lst;
    list.Clear();
    list.Items.reserve(aliases.AliasCount());
    for (std::size_t place = 0; place < aliases.AliasCount(); ++place) {
        list.Items.push_back(AliasLine(aliases[place], names));
    }
}

void ShowAlias(Fig_Frm& form, TextView name) {
    FillAliasList(form);
    const AliasPlace at = FindAlias(form.Document, name);
    form.Alias_Lst.ListIndex = at.Found ? static_cast<int>(at.Place) : -1;
}

void AddCustomAlias_Cmd_Click(Fig_Frm& form) {
    Alias_Frm dialog(form, std::nullopt);
    ShowModal(dialog);
}

void EditAlias_Cmd_Click(Fig_Frm& form) {
    if (TellNoSelection(form)) {
        return;
    }
    Alias_Frm dialog(form, static_cast<std::size_t>(form.Alias_Lst.ListIndex));
    ShowModal(dialog);
}

void DeleteAlias_Cmd_Click(Fig_Frm& form) {
    if (TellNoSelection(form)) {
        return;
    }
    const Text name = SelectedName(form);
    if (AskUser(form.run, "Confirm Deletion", "Do you want to delete this alias?", "&Yes,&No") != 0) {
        return;
    }
    const AliasPlace at = FindAlias(form.Document, name);
    if (!at.Found) {
        AskUser(form.run, "Internal Error", "Unable to delete alias.");
        return;
    }
    const SlotNumber box = BoxOfAlias(form.Document, name);
    if (box != kNoSlot) {
        EmptyBox(form, box);
    }
    form.Document.AliasTable.Erase(at.Place);
    FillAliasList(form);
    Edited(form);
}

void AddStandardAlias_Cmd_Click(Fig_Frm& form) {
    if (!form.StdAliases_Cbo.HasSelection()) {
        AskUser(form.run, kTitle, "No Standard Alias has been selected.");
        return;
    }
    const auto entry = static_cast<std::size_t>(form.StdAliases_Cbo.ListIndex);
    const Text name = StandardAliasName(entry);
    const AliasPlace existing = FindAlias(form.Document, name);
    if (existing.Found && !MayOverwrite(form, name)) {
        return;
    }
    if (!WriteStandardAliasFiles(form, entry)) {
        return;
    }
    const Text body = StandardAliasBody(form.Document, entry);
    if (existing.Found) {
        ReplaceBody(form, existing.Place, body);
    } else {
        AddAlias(form.Document, name, body);
    }
    ShowAlias(form, name);
    Edited(form);
}

}  // namespace lv
