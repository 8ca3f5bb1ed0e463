#include "catalogs/editors/view_all.h"

#include <algorithm>

#include "catalogs/servers.h"
#include "foundation/field_strings.h"
#include "foundation/padded_item.h"
#include "foundation/question_box.h"

namespace lv {

namespace {

constexpr TextView kBetween = "  /  ";
constexpr int kMostBlanks = 1000;

std::vector<ViewRow> RowsOf(const ListBox& list) {
    std::vector<ViewRow> rows;
    for (const Text& item : list.Items) {
        rows.push_back({ItemTitle(item), ItemValue(item)});
    }
    return rows;
}

// Blanks are counted first and measured afterwards, as measuring is what takes time.
Text PadToMeasure(UserInterface& user, Text title, int width, int blank) {
    const int missing = width - user.TextWidth(title);
    title.append(static_cast<std::size_t>(std::clamp(missing / blank, 0, kMostBlanks)), ' ');
    for (int more = 0; more < kMostBlanks && user.TextWidth(title) < width; ++more) {
        title += ' ';
    }
    return title;
}

void Show(Run& run, const char* title, const char* first, const char* second, const std::vector<ViewRow>& rows) {
    AskUser(run, title, ViewText(run.User, first, second, rows), "&Cool");
}

const char* ServerTitleOf(Index type) {
    constexpr const char* kTitles[] = {"View All Quake Servers", "View All QuakeWorld Servers",
                                       "View All Hexen2 Servers", "View All Quake2 Servers"};
    return type >= 0 && type < static_cast<Index>(std::size(kTitles)) ? kTitles[type] : "";
}

}  // namespace

Text ViewText(UserInterface& user, TextView firstColumn, TextView secondColumn, const std::vector<ViewRow>& rows) {
    int width = 0;
    for (const ViewRow& row : rows) {
        width = std::max(width, user.TextWidth(row.Title));
    }
    const int blank = std::max(1, user.TextWidth(Blank));
    const Text head = Join(firstColumn, kBetween, secondColumn);
    Text text = Join(head, NewLine, Text(head.size(), '-'));
    for (const ViewRow& row : rows) {
        text += Join(NewLine, PadToMeasure(user, row.Title, width, blank), TabChar, kBetween, row.Value);
    }
    return text;
}

void ViewAllExecutables(Run& run, const CatalogLists& lists) {
    std::vector<ViewRow> rows;
    for (const ImageComboItem& item : lists.Exe_Cbo.Items) {
        rows.push_back({item.Title, item.Key});
    }
    Show(run, "View All Executables", "Executable Title", "Executable Path", rows);
}

void ViewAllGames(Run& run, const CatalogLists& lists) {
    Show(run, "View All Games", "Game Title", "-game Directory", RowsOf(lists.Game_Cbo));
}

void ViewAllScripts(Run& run, const CatalogLists& lists) {
    Show(run, "View All Scripts", "Script Title", "Script File Path & Name", RowsOf(lists.Script_Cbo));
}

void ViewAllDemos(Run& run, const CatalogLists& lists) {
    Show(run, "View All Demos", "Demo Title", "Demo File Name", RowsOf(lists.Demo_Cbo));
}

void ViewAllMemory(Run& run, const CatalogLists& lists) {
    Show(run, "View All Memory", "Memory Title", "-winmem Megabytes", RowsOf(lists.Mem_Cbo));
}

void ViewAllServers(Run& run, const CatalogLists& lists) {
    std::vector<ViewRow> rows = RowsOf(lists.Server_Cbo);
    for (ViewRow& row : rows) {
        row.Value = Join(GetField(row.Value, 0, ";"), ":", GetField(row.Value, 1, ";"));
    }
    Show(run, ServerTitleOf(WantedServerType(run)), "Server Title", "Server Address", rows);
}

}  // namespace lv
