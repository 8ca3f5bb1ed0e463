#include "catalogs/editors/add_server.h"

#include "foundation/field_strings.h"
#include "foundation/numbers.h"
#include "foundation/padded_item.h"

namespace lv {

namespace {

struct ServerEntry {
    Text Title;
    Text Address;
    Text Port;
    Text Password;
};

std::array<Text, kServerTypes> TypeCaptions() {
    std::array<Text, kServerTypes> captions;
    for (Index type = 0; type < kServerTypes; ++type) {
        captions[static_cast<std::size_t>(type)] = ServerTypeName(type);
    }
    return captions;
}

bool IsEdit(const AddServer_Frm& form) {
    return form.Mode == EntryMode::Edit && form.Lists.Server_Cbo.HasSelection();
}

// The port is tested for a comma and told of a semi-colon: kept on purpose.
bool Validate(AddServer_Frm& form, const ServerEntry& entry) {
    if (entry.Title.empty()) {
        TellFault(form, "ServerTitle_Txt", "Enter a Title for the Server.");
    } else if (Holds(entry.Title, ";")) {
        TellFault(form, "ServerTitle_Txt", "The Title may not contain a semi-colon.");
    } else if (entry.Address.empty()) {
        TellFault(form, "ServerPath_Txt", "Enter the Server Address.");
    } else if (Holds(entry.Address, ";")) {
        TellFault(form, "ServerPath_Txt", "The Server Address may not contain a semi-colon.");
    } else if (Holds(entry.Port, ",") || Holds(entry.Port, ";")) {
        TellFault(form, "Port_Txt", "The Server Port may not contain a semi-colon.");
    } else if (Holds(entry.Password, ";")) {
        TellFault(form, "Password_Txt", "The Server Port may not contain a semi-colon.");
    } else {
        return true;
    }
    return false;
}

void PutRow(ListBox& list, bool edit, const Text& item) {
    if (edit) {
        list.Items[static_cast<std::size_t>(list.ListIndex)] = item;
    } else {
        list.Items.push_back(item);
    }
}

bool StoreEntry(AddServer_Frm& form, const ServerEntry& entry) {
    ListBox& list = form.Lists.Server_Cbo;
    Text& hidden = form.Lists.HiddenServers;
    const ListBox listBefore = list;
    const Text hiddenBefore = hidden;
    const bool edit = IsEdit(form);
    const Text rest = Join(entry.Address, ";", entry.Port, ";", std::to_string(form.ServerType), ";", entry.Password);
    if (form.ServerType == WantedServerType(form.run)) {
        PutRow(list, edit, MakeItem(entry.Title, rest));
    } else {
        AppendRecord(hidden, Join(entry.Title, ";", rest));
        if (edit) {
            TakeRowOut(list);  // it has moved to the other game
        }
    }
    if (SaveCatalog(form.run, form.Lists, kServers.Key, list)) {
        return true;
    }
    list = listBefore;
    hidden = hiddenBefore;
    return false;
}

}  // namespace

AddServer_Frm::AddServer_Frm(Run& owner, CatalogLists& lists, EntryMode mode, bool fromRow)
    : EntryWindow(owner, "AddServer_Frm", mode),
      Lists(lists),
      Server_Opt(TypeCaptions()),
      ServerType(WantedServerType(owner)) {
    Caption = mode == EntryMode::Edit ? "Edit Current Server" : fromRow ? "Copy Current Server" : "Add Server";
    ServerTitle_Lbl.Caption = "Server Title";
    ServerPath_Lbl.Caption = "Server Address";
    Port_Lbl.Caption = "Server Port";
    Password_Lbl.Caption = "Server Password";
    Server_Fra.Caption = "Server Type";
    if (!fromRow || !lists.Server_Cbo.HasSelection()) {
        return;
    }
    const std::vector<Text> fields = SplitFields(ItemValue(lists.Server_Cbo.Selected()));
    const auto field = [&](std::size_t index) { return index < fields.size() ? Trim(fields[index]) : Text(); };
    ServerTitle_Txt.Text = ItemTitle(lists.Server_Cbo.Selected());
    ServerPath_Txt.Text = field(server_field::kAddress - 1);
    Port_Txt.Text = field(server_field::kPort - 1);
    AddServer_Server_Opt_Click(*this, ToIndex(field(server_field::kType - 1)));
    Password_Txt.Text = field(server_field::kPassword - 1);
}

void AddServer_Server_Opt_Click(AddServer_Frm& form, Index type) {
    if (type >= 0 && type < kServerTypes) {
        form.ServerType = type;
    }
}

void AddServer_OK_Cmd_Click(AddServer_Frm& form) {
    const ServerEntry entry = {Trim(form.ServerTitle_Txt.Text), Trim(form.ServerPath_Txt.Text),
                               Trim(form.Port_Txt.Text), Trim(form.Password_Txt.Text)};
    if (!Validate(form, entry) || !StoreEntry(form, entry)) {
        return;
    }
    ConfirmEntry(form, entry.Title, entry.Port.empty() ? entry.Address : Join(entry.Address, ":", entry.Port));
}

SelectServerType_Frm::SelectServerType_Frm(Run& owner, TextView message)
    : EntryWindow(owner, "SelectServerType_Frm", EntryMode::Add), Server_Opt(TypeCaptions()) {
    Caption = "Select Server Type...";
    Message_Lbl.Caption = message;
    SelectServerType_Server_Opt_Click(*this, WantedServerType(owner));
}

void SelectServerType_Server_Opt_Click(SelectServerType_Frm& form, Index type) {
    if (type >= 0 && type < kServerTypes) {
        form.ServerType = type;
        form.LastEntry = std::to_string(type);
    }
}

void SelectServerType_OK_Cmd_Click(SelectServerType_Frm& form) {
    form.DialogResult = true;
    form.Closed = true;
}

}  // namespace lv
