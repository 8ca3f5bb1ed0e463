#include "launcher/drop/join_server.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "catalogs/catalog_store.h"
#include "catalogs/editors/add_server.h"
#include "catalogs/servers.h"
#include "foundation/field_strings.h"
#include "foundation/padded_item.h"
#include "foundation/shown_name.h"
#include "launcher/setups/row_picks.h"
#include "launcher/setups/setup_start.h"
#include "launcher/window/launch_flow.h"
#include "launcher/window/lv_events.h"

namespace lv {

namespace {

struct SchemeRow {
    TextView Scheme;
    Game GameKind;
    bool ForWorldAlone;
    Index ServerType;
};

constexpr SchemeRow kSchemes[] = {
    {"qw", Game::Quake, true, 1},
    {"quake", Game::Quake, false, 0},
    {"quake2", Game::Quake2, false, 3},
};

const SchemeRow* RowOf(const ServerLink& server) {
    const auto* const row = std::ranges::find(kSchemes, server.Scheme, &SchemeRow::Scheme);
    return row == std::end(kSchemes) ? nullptr : row;
}

// An engine of today may play both, Quake and QuakeWorld.
bool PlaysQuakeWorld(const PlayedBy& plays) {
    return plays.Flags.IsQuakeWorld ||
           (plays.OfToday != nullptr && (plays.OfToday->Games & engine_game::kQuakeWorld) != 0);
}

bool CanJoin(const PlayedBy& plays, const ServerLink& server) {
    if (plays.Facts->GameKind == Game::None ||
        (plays.OfToday != nullptr && plays.OfToday->Role == EngineRole::Server)) {
        return false;
    }
    const SchemeRow* const row = RowOf(server);
    return row == nullptr ||
           (plays.Facts->GameKind == row->GameKind && (!row->ForWorldAlone || PlaysQuakeWorld(plays)));
}

// The row of the address in the list, whatever its title and its password.
std::optional<Text> ListedRecord(const ListBox& list, const ServerAddress& address) {
    for (const Text& item : list.Items) {
        const Text record = ItemValue(item);
        const std::vector<Text> fields = SplitFields(record);
        if (fields.size() > 1 && SameText(Trim(fields[0]), address.Host) && Trim(fields[1]) == address.Port) {
            return record;
        }
    }
    return std::nullopt;
}

// In the list from now on. False if the list has no room: the user was told.
bool PickServerOf(Launcher& launcher, const ServerLink& server) {
    ListBox& list = launcher.Window.Server_Cbo;
    const auto listed = ListedRecord(list, server.Address);
    if (listed) {
        return PickServer(launcher, *listed);
    }
    const Text record =
        Join(server.Address.Host, ";", server.Address.Port, ";", std::to_string(WantedServerType(launcher.run)), ";");
    list.Items.push_back(MakeItem(AddressOf(server), record));
    if (!SaveCatalog(launcher.run, launcher.Lists, kServers.Key, list)) {
        list.Items.pop_back();
        return false;
    }
    return PickServer(launcher, record);
}

// Whatever was ticked before: the click runs, and clears what does not go with joining.
void TickServer(Launcher& launcher) {
    launcher.Window.Box(Option::Server_Chk).Value = 1;
    Option_Chk_Click(launcher, Option::Server_Chk);
}

void JoinWith(Launcher& launcher, const JoinChoice& choice, const ServerLink& server) {
    const bool isPicked =
        choice.Setup != 0 ? PickSetup(launcher, choice.Setup) : PickExecutable(launcher, choice.Program);
    if (!isPicked || launcher.run.Ended || !PickServerOf(launcher, server)) {
        return;
    }
    TickServer(launcher);
    launcher.run.User.Refresh();
    DoIt_Cmd_Click(launcher, static_cast<int>(LaunchMode::Launch));
}

void AddToList(Launcher& launcher, const ServerLink& server) {
    AddServer_Frm form(launcher.run, launcher.Lists, EntryMode::Add, false);
    form.ServerTitle_Txt.Text = AddressOf(server);
    form.ServerPath_Txt.Text = server.Address.Host;
    form.Port_Txt.Text = server.Address.Port;
    if (const SchemeRow* const row = RowOf(server)) {
        AddServer_Server_Opt_Click(form, row->ServerType);
    }
    ShowModal(form);
}

void Close(JoinServer_Frm& form, JoinServer_Frm::Answer chosen) {
    form.Chosen = chosen;
    form.Closed = true;
}

}  // namespace

JoinServer_Frm::JoinServer_Frm(Launcher& owner, ServerLink server)
    : ModalWindow(owner.run, "JoinServer_Frm"),
      launcher(owner),
      Server(std::move(server)),
      Choices(ChoicesThatJoin(owner, Server)) {
    Caption = "Join Server";
    JoinAddress_Lbl.Caption = "Server Address";
    JoinAddress_Txt.Text = Server.Scheme.empty() ? AddressOf(Server) : Join(Server.Scheme, "://", AddressOf(Server));
    JoinPrograms_Lbl.Caption = "&Programs and Setups That Can Join";
    for (const JoinChoice& choice : Choices) {
        JoinPrograms_Lst.Items.push_back(choice.Words);
    }
    const auto picked = PickedProgram(owner);
    const auto row = std::ranges::find_if(
        Choices, [&](const JoinChoice& choice) { return picked && SameText(choice.Program, picked->Path); });
    JoinPrograms_Lst.ListIndex = Choices.empty()        ? -1
                                 : row == Choices.end() ? 0
                                                        : static_cast<int>(row - Choices.begin());
    JoinHint_Lbl.Caption = Choices.empty() ? "No listed program can join a server of this kind."
                                           : "Join puts the server into the program's list, ticks it and starts the "
                                             "program. Add to List starts nothing.";
    Join_Cmd.Caption = "&Join";
    Join_Cmd.Enabled = !Choices.empty();
    JoinAdd_Cmd.Caption = "&Add to List";
    Cancel_Cmd.Caption = "&Cancel";
    Cancel_Cmd.Default = true;
    Focus = "Cancel_Cmd";
}

std::vector<JoinChoice> ChoicesThatJoin(Launcher& launcher, const ServerLink& server) {
    std::vector<JoinChoice> choices;
    for (const ListedProgram& program : ListedPrograms(launcher)) {
        if (CanJoin(program.Plays, server)) {
            choices.push_back({Join(Shown(program.Title), " (", Shown(program.Path), ")"), program.Path});
        }
    }
    const std::size_t programs = choices.size();
    for (const KeptSetup& setup : launcher.Setups.All) {
        const bool canJoin =
            std::any_of(choices.begin(), choices.begin() + static_cast<std::ptrdiff_t>(programs),
                        [&](const JoinChoice& choice) { return SameText(choice.Program, setup.What.ExecutablePath); });
        if (canJoin) {
            choices.push_back({Join("Setup: ", Shown(setup.What.Name)), setup.What.ExecutablePath, setup.Number});
        }
    }
    return choices;
}

Text AddressOf(const ServerLink& server) {
    return server.Address.Port.empty() ? server.Address.Host : Join(server.Address.Host, ":", server.Address.Port);
}

void JoinServer_JoinPrograms_Lst_Click(JoinServer_Frm& form) {
    form.Join_Cmd.Enabled = form.JoinPrograms_Lst.HasSelection();
}

void JoinServer_Join_Cmd_Click(JoinServer_Frm& form) {
    if (form.JoinPrograms_Lst.HasSelection()) {
        Close(form, JoinServer_Frm::Answer::Join);
    }
}

void JoinServer_JoinAdd_Cmd_Click(JoinServer_Frm& form) {
    Close(form, JoinServer_Frm::Answer::Add);
}

void JoinServer_Cancel_Cmd_Click(JoinServer_Frm& form) {
    Close(form, JoinServer_Frm::Answer::None);
}

void OfferServer(Launcher& launcher, const ServerLink& server) {
    JoinServer_Frm form(launcher, server);
    ShowModal(form);
    if (form.Chosen == JoinServer_Frm::Answer::Join) {
        JoinWith(launcher, form.Choices[static_cast<std::size_t>(form.JoinPrograms_Lst.ListIndex)], server);
    } else if (form.Chosen == JoinServer_Frm::Answer::Add) {
        AddToList(launcher, server);
    }
}

}  // namespace lv
