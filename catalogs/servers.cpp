#include "catalogs/servers.h"

#include "catalogs/catalog_store.h"
#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "foundation/numbers.h"
#include "foundation/padded_item.h"

namespace lv {

namespace {

constexpr Index kQuakeServer = 0;

constexpr TextView kTypeNames[kServerTypes] = {
    "Quake", "QuakeWorld", "Hexen2", "Quake2", "Unreal", "SIN", "Heretic2", "Shogo", "Blood 2", "Half-Life",
};

Text JoinFrom(const CatalogRows& rows, std::size_t record, std::size_t first) {
    Text joined = Trim(rows.Field(record, first));
    for (std::size_t field = first + 1; field < rows.RecordSize; ++field) {
        joined.append(";").append(Trim(rows.Field(record, field)));
    }
    return joined;
}

}  // namespace

TextView ServerTypeName(Index type) {
    return type >= 0 && type < kServerTypes ? kTypeNames[static_cast<std::size_t>(type)] : TextView();
}

Index WantedServerType(const Run& run) {
    const bool plainQuake = run.GameKind == Game::Quake && !run.IsQuakeWorld;
    return plainQuake ? kQuakeServer : NumberOf(run.GameKind);
}

bool FillServerCombo(Run& run, CatalogLists& lists) {
    const Index wanted = WantedServerType(run);
    const auto rows = ReadCatalog(run, kServers);
    if (!rows) {
        return false;
    }
    ListBox& list = lists.Server_Cbo;
    list.Clear();
    lists.HiddenServers.clear();
    for (std::size_t i = 0; i < rows->Count(); ++i) {
        if (ToIndex(rows->Field(i, server_field::kType)) == wanted) {
            list.Items.push_back(
                MakeItem(rows->Field(i, server_field::kTitle), JoinFrom(*rows, i, server_field::kAddress)));
        } else {
            AppendRecord(lists.HiddenServers, JoinFrom(*rows, i, server_field::kTitle));
        }
    }
    // The pick of a row writes another key, "ServerPos": kept on purpose, so a pick is not restored from here.
    list.ListIndex = RepairedPosition(run, std::to_string(wanted) + "ServersPos", 0, list.Items.size());
    lists.Server_Chk.Value = StoredCheck(run, "UseServers", 0);
    return true;
}

}  // namespace lv
