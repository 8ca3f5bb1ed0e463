#include "catalogs/scripts.h"

#include <algorithm>
#include <unordered_set>

#include "catalogs/catalog_store.h"
#include "catalogs/list_room.h"
#include "catalogs/wildcard.h"
#include "foundation/field_strings.h"
#include "foundation/padded_item.h"
#include "foundation/settings.h"

namespace lv {

namespace {

// Helper files of other programs and of this one; no player's scripts.
constexpr TextView kHelperFiles[] = {
    "qspy.cfg", "autoexec.cfg", "gamespy.cfg",  "qdm.cfg",    "qview.cfg",
    "rift.cfg", "lv_666.cfg",   "frontend.cfg", "server.cfg",
};

struct Script {
    Text Title;
    Text Path;
};

bool IsHelperFile(TextView name) {
    return std::find(std::begin(kHelperFiles), std::end(kHelperFiles), name) != std::end(kHelperFiles);
}

struct Scripts {
    std::vector<Script> All;
    bool IsFull = false;  // the directory has more
};

// The catalog's scripts and those on the disk, each path once and in lower case.
Scripts CollectScripts(Run& run, const CatalogRows& stored, TextView directory) {
    Scripts scripts;
    std::size_t room = kMostFoundScripts;
    std::unordered_set<Text> paths;
    for (std::size_t i = 0; i < stored.Count(); ++i) {
        Text path = LowerCase(stored.Field(i, 1));
        if (paths.insert(path).second) {
            scripts.All.push_back({stored.Field(i, 0), std::move(path)});
        }
    }
    for (const Text& found : ListFiles(run.System.Disk, directory, Join("*", ScriptEnding(run)))) {
        Text name = LowerCase(found);
        Text path = Join(directory, "\\", name);
        if (IsHelperFile(name) || !FitsAField(path) || !paths.insert(path).second) {
            continue;
        }
        if (room == 0) {
            scripts.IsFull = true;
            break;
        }
        --room;
        scripts.All.push_back({std::move(name), std::move(path)});
    }
    return scripts;
}

int RememberedRow(Run& run, const ListBox& list) {
    if (list.Items.empty()) {
        return -1;
    }
    const Text wanted = GetSetting(run, run.AppName, "DefaultScript", DefaultScriptKey(run), GamesOwnScript(run));
    return FindItemValue(list.Items, wanted).value_or(0);
}

}  // namespace

Text ScriptDirectory(const Run& run) {
    return run.GameKind == Game::Unreal ? run.DefaultGameDirectory
                                        : Join(run.DefaultGameDirectory, "\\", run.CurrentGameDir);
}

TextView ScriptEnding(const Run& run) {
    return run.GameKind == Game::Unreal ? ".ini" : ".cfg";
}

Text GamesOwnScript(const Run& run) {
    return Join(ScriptDirectory(run), run.GameKind == Game::Unreal ? "\\unreal.ini" : "\\config.cfg");
}

Text DefaultScriptKey(const Run& run) {
    return Join(run.DefaultGameDirectory, "\\", run.CurrentGameDir);
}

bool FixScriptRegistries(Run& run) {
    const auto rows = ReadCatalog(run, kScripts);
    if (!rows) {
        return false;
    }
    Text kept;
    for (std::size_t i = 0; i < rows->Count(); ++i) {
        const Text path = Trim(rows->Field(i, 1));
        if (run.System.Disk.FileExists(path)) {
            AppendRecord(kept, Join(Trim(rows->Field(i, 0)), ";", path));
        }
    }
    StoreCatalog(run, kScripts.Key, kept);
    return true;
}

bool FillScriptsCombo(Run& run, CatalogLists& lists) {
    const auto stored = ReadCatalog(run, kScripts);
    if (!stored) {
        return false;
    }
    const Text directory = LowerCase(ScriptDirectory(run));
    const Scripts scripts = CollectScripts(run, *stored, directory);

    ListBox& list = lists.Script_Cbo;
    list.Clear();
    lists.HiddenScripts.clear();
    Text all;
    for (const Script& script : scripts.All) {
        const Text record = Join(script.Title, ";", script.Path);
        AppendRecord(all, record);
        if (DirectoryOf(script.Path) == directory) {
            list.Items.push_back(MakeItem(script.Title, script.Path));
        } else {
            AppendRecord(lists.HiddenScripts, record);
        }
    }
    if (!scripts.IsFull) {  // the catalog would not hold them
        StoreCatalog(run, kScripts.Key, all);
    }
    list.ListIndex = RememberedRow(run, list);
    lists.Script_Chk.Value = StoredCheck(run, "UseScripts", 0);
    if (scripts.IsFull) {
        TellListIsFull(run, lists.ScriptsToldOf, directory, "scripts", list.Items.size());
    }
    return true;
}

bool AddToScripts(Run& run, TextView title, TextView path) {
    const auto stored = ReadCatalog(run, kScripts);
    const Text lower = LowerCase(path);
    if (!stored || !FitsAField(lower)) {
        return false;
    }
    for (std::size_t i = 0; i < stored->Count(); ++i) {
        if (SameText(Trim(stored->Field(i, 1)), lower)) {
            return false;
        }
    }
    Text all = stored->Count() == 0 ? Text() : CatalogValue(run, kScripts);
    AppendRecord(all, Join(title, ";", lower));
    return StoreCatalog(run, kScripts.Key, all);
}

}  // namespace lv
