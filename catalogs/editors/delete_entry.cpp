#include "catalogs/editors/delete_entry.h"

#include "catalogs/catalog_store.h"
#include "catalogs/unused_seats.h"
#include "foundation/padded_item.h"
#include "foundation/question_box.h"

namespace lv {

namespace {

struct Deletion {
    const char* NoSelection;
    const char* Sentence;
    const char* SecondLine;  // "": none
    const char* Done;
    const char* Cancelled;
};

constexpr const char* kDeleted = " was deleted.";
constexpr const char* kCancelled = "Deletion Cancelled";

constexpr Deletion kDeletesExecutable = {kNoExecutable, "Do you want to remove this executable from the list?",
                                         "(no, this does NOT delete any files from your harddrive)",
                                         " was removed from the list.", "List Entry Deletion Cancelled"};
constexpr Deletion kDeletesGame = {kNoGame, "Do you want to remove this game from the list?",
                                   "(no, this does NOT remove any files from your harddrive)", kDeleted, kCancelled};
constexpr Deletion kDeletesDemo = {kNoDemo, "Do you want to delete this demo (i.e. remove it from the list)?", "",
                                   kDeleted, kCancelled};
constexpr Deletion kDeletesServer = {kNoServer, "Do you want to delete this server?", "", kDeleted, kCancelled};
constexpr Deletion kDeletesScript = {kNoScript, "Do you want to delete this script?",
                                     "(yes, this DOES delete the file from your harddrive)", kDeleted, kCancelled};

// The second box tells of a deed that is not done yet, and can still stop it: kept on purpose.
bool Confirm(Run& run, const Deletion& deletion, TextView title, TextView value) {
    Text question = Join(deletion.Sentence, NewLine);
    if (*deletion.SecondLine != '\0') {
        question += Join(deletion.SecondLine, NewLine);
    }
    question += Join(title, TwoBlanks, "/", TwoBlanks, value);
    if (AskUser(run, "Confirm Deletion", question, "&Yes,&Cancel") != 0) {
        return false;
    }
    if (AskUser(run, "", Join(title, deletion.Done), "&Cool,&Not Cool") != 0) {
        AskUser(run, "", deletion.Cancelled);
        return false;
    }
    return true;
}

bool DeleteRow(Run& run, CatalogLists& lists, ListBox& list, const Catalog& catalog, const Deletion& deletion) {
    if (!list.HasSelection()) {
        AskUser(run, "", deletion.NoSelection);
        return false;
    }
    if (!Confirm(run, deletion, ItemTitle(list.Selected()), ItemValue(list.Selected()))) {
        return false;
    }
    TakeRowOut(list);
    SaveCatalog(run, lists, catalog.Key, list);
    return true;
}

void DeleteFile(Run& run, const Text& path) {
    if (!run.System.Disk.FileExists(path)) {
        AskUser(run, "", "The Script was already gone when I got there...");
    } else if (run.System.Disk.Delete(path)) {
        AskUser(run, "Error", "The Script was not deleted.");
    }
}

}  // namespace

bool DeleteExecutable(Run& run, CatalogLists& lists) {
    ImageCombo& list = lists.Exe_Cbo;
    if (!list.HasSelection()) {
        AskUser(run, "", kDeletesExecutable.NoSelection);
        return false;
    }
    const ImageComboItem& row = list.Items[static_cast<std::size_t>(list.ListIndex)];
    if (!Confirm(run, kDeletesExecutable, row.Title, row.Key)) {
        return false;
    }
    TakeRowOut(list);
    SaveCatalog(run, lists, kExecutables.Key, list);
    LeaveUnusedSeats(run);
    return true;
}

bool DeleteGame(Run& run, CatalogLists& lists) {
    return DeleteRow(run, lists, lists.Game_Cbo, kGames, kDeletesGame);
}

bool DeleteDemo(Run& run, CatalogLists& lists) {
    return DeleteRow(run, lists, lists.Demo_Cbo, kDemos, kDeletesDemo);
}

bool DeleteServer(Run& run, CatalogLists& lists) {
    return DeleteRow(run, lists, lists.Server_Cbo, kServers, kDeletesServer);
}

bool DeleteScript(Run& run, CatalogLists& lists) {
    ListBox& list = lists.Script_Cbo;
    if (!list.HasSelection()) {
        AskUser(run, "", kDeletesScript.NoSelection);
        return false;
    }
    const Text path = ItemValue(list.Selected());
    if (!Confirm(run, kDeletesScript, ItemTitle(list.Selected()), path)) {
        return false;
    }
    DeleteFile(run, path);
    TakeRowOut(list);
    SaveCatalog(run, lists, kScripts.Key, list);
    return true;
}

}  // namespace lv
