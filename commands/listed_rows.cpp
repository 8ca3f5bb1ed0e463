#include "commands/listed_rows.h"

#include "catalogs/modifications.h"
#include "catalogs/servers.h"
#include "foundation/field_strings.h"
#include "foundation/padded_item.h"
#include "launcher/setups/setup_store.h"

namespace lv {

namespace {

NamedRow ModificationRow(const Text& row) {
    return {ItemTitle(row), ItemValue(row), DirectoryOfOption(ItemValue(row))};
}

NamedRow ScriptRow(const Text& row) {
    const Text path = ItemValue(row);
    return {ItemTitle(row), path, LastPathPart(path)};
}

/// "host:port", or "host" where the record has no port.
NamedRow ServerRow(const Text& row) {
    const Text record = ItemValue(row);
    const Text host = Trim(GetField(record, 0, ";"));
    const Text port = Trim(GetField(record, 1, ";"));
    return {ItemTitle(row), record, port.empty() ? host : Join(host, ":", port)};
}

NamedRow PlainRow(const Text& row) {
    return {Trim(row), Trim(row)};
}

template <class RowOf>
std::vector<NamedRow> AllOf(const ListBox& list, RowOf rowOf) {
    std::vector<NamedRow> rows;
    for (const Text& item : list.Items) {
        rows.push_back(rowOf(item));
    }
    return rows;
}

std::vector<NamedRow> SetupRowsOf(const Launcher& launcher) {
    std::vector<NamedRow> rows;
    for (const KeptSetup& setup : LoadSetups(launcher.run).All) {
        rows.push_back({setup.What.Name, setup.What.Name});
    }
    return rows;
}

std::vector<NamedRow> ProgramRows(const ImageCombo& list) {
    std::vector<NamedRow> rows;
    for (const ImageComboItem& item : list.Items) {
        rows.push_back({Trim(item.Title), item.Key});
    }
    return rows;
}

}  // namespace

std::vector<NamedRow> RowsOf(const Launcher& launcher, Listed kind) {
    const LV_Frm& window = launcher.Window;
    switch (kind) {
        case Listed::Programs:
            return ProgramRows(window.Exe_Cbo);
        case Listed::Modifications:
            return AllOf(window.Game_Cbo, ModificationRow);
        case Listed::Maps:
            return AllOf(window.Map_Cbo, PlainRow);
        case Listed::Scripts:
            return AllOf(window.Script_Cbo, ScriptRow);
        case Listed::Servers:
            return AllOf(window.Server_Cbo, ServerRow);
        case Listed::VideoProfiles:
            return AllOf(window.VideoProfiles_Cbo, PlainRow);
        case Listed::Setups:
            return SetupRowsOf(launcher);
    }
    return {};
}

TextView NameOfKind(Listed kind) {
    switch (kind) {
        case Listed::Programs:
            return "program";
        case Listed::Setups:
            return "setup";
        case Listed::Modifications:
            return "modification";
        case Listed::Maps:
            return "map";
        case Listed::Scripts:
            return "script";
        case Listed::Servers:
            return "server";
        case Listed::VideoProfiles:
            return "video profile";
    }
    return "";
}

}  // namespace lv
