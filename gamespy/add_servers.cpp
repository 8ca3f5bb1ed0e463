#include "gamespy/add_servers.h"

#include <algorithm>

#include "catalogs/editors/add_server.h"
#include "foundation/padded_item.h"
#include "foundation/question_box.h"
#include "gamespy/game_spy_fetch.h"
#include "gamespy/server_text.h"

namespace lv {

namespace {

constexpr TextView kAskType = "Please select the game type of these servers.";
constexpr TextView kAddressesOnly =
    " Note: to add the server names from GameSpy also, please deselect the 'copy IP address only' option in GameSpy.";

// A name may hold what parts the fields of the catalog.
Text AsField(Text text) {
    std::replace(text.begin(), text.end(), ';', ',');
    return text;
}

void ShowOneServer(Run& run, CatalogLists& lists, TextView line) {
    const CapturedServer server = ReadOneServer(line);
    AddServer_Frm form(run, lists, EntryMode::Add, false);
    form.ServerTitle_Txt.Text = AsField(server.Title);
    form.ServerPath_Txt.Text = AsField(server.Host);
    form.Port_Txt.Text = AsField(server.Port);
    ShowModal(form);
}

/// Lines without an address give no server.
std::vector<CapturedServer> ReadServers(TextView marked, bool addressesOnly) {
    std::vector<CapturedServer> servers;
    for (Index i = 0; i < CountLines(marked); ++i) {
        CapturedServer server = ReadListedServer(LineAt(marked, i), addressesOnly);
        if (!server.Host.empty()) {
            servers.push_back({AsField(server.Title), AsField(server.Host), AsField(server.Port)});
        }
    }
    return servers;
}

bool Store(Run& run, CatalogLists& lists, const std::vector<CapturedServer>& servers, Index type) {
    const ListBox listBefore = lists.Server_Cbo;
    const Text hiddenBefore = lists.HiddenServers;
    for (const CapturedServer& server : servers) {
        const Text rest = Join(server.Host, ";", server.Port, ";", std::to_string(type), ";");
        if (type == WantedServerType(run)) {
            lists.Server_Cbo.Items.push_back(MakeItem(server.Title, rest));
        } else {
            AppendRecord(lists.HiddenServers, Join(server.Title, ";", rest));
        }
    }
    if (SaveCatalog(run, lists, kServers.Key, lists.Server_Cbo)) {
        return true;
    }
    lists.Server_Cbo = listBefore;
    lists.HiddenServers = hiddenBefore;
    return false;
}

void AddSeveral(Run& run, CatalogLists& lists, TextView marked) {
    const bool addressesOnly = IsAddressAlone(LineAt(marked, 0));
    SelectServerType_Frm form(run, addressesOnly ? Join(kAskType, kAddressesOnly) : Text(kAskType));
    ShowModal(form);
    if (!form.DialogResult) {
        return;
    }
    const std::vector<CapturedServer> servers = ReadServers(marked, addressesOnly);
    if (Store(run, lists, servers, form.ServerType)) {
        AskUser(run, "", Join(std::to_string(servers.size()), " Servers Added"));
    }
}

}  // namespace

void AddCurrentGameSpyServers(Run& run, CatalogLists& lists) {
    const Text copied = GameSpyFetch(run, true);
    if (copied.empty() || run.Ended) {
        return;
    }
    const Text marked = MarkLines(copied);
    const Index count = CountLines(marked);
    if (count > kMostServers) {
        AskUser(run, "",
                Join("You have selected ", std::to_string(count), " servers to add.", NewLine,
                     "The limit is 20 per add session."));
        return;
    }
    if (count == 1) {
        ShowOneServer(run, lists, marked);
    } else {
        AddSeveral(run, lists, marked);
    }
}

}  // namespace lv
