#include "catalogs/catalog_store.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/padded_item.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"

namespace lv {

namespace {

Text* HiddenOf(CatalogLists& lists, TextView key) {
    if (key == kGames.Key) {
        return &lists.HiddenGames;
    }
    if (key == kScripts.Key) {
        return &lists.HiddenScripts;
    }
    return key == kServers.Key ? &lists.HiddenServers : nullptr;
}

Text WithHidden(CatalogLists& lists, TextView key, Text rows) {
    if (const Text* hidden = HiddenOf(lists, key); hidden != nullptr && !hidden->empty()) {
        AppendRecord(rows, *hidden);
    }
    return rows;
}

Text RowsOf(const ListBox& list) {
    Text rows;
    for (const Text& item : list.Items) {
        AppendRecord(rows, Join(ItemTitle(item), ";", ItemValue(item)));
    }
    return rows;
}

}  // namespace

std::vector<Text> SplitFields(TextView list) {
    const std::size_t count = static_cast<std::size_t>(CountDelimiters(list, ";")) + 1;
    std::vector<Text> fields;
    fields.reserve(count);
    std::size_t begin = 0;
    while (fields.size() < count) {
        const std::size_t end = std::min(list.find(';', begin), list.size());
        TextView field = list.substr(begin, end - begin);
        field.remove_prefix(std::min(field.find_first_not_of(' '), field.size()));
        fields.emplace_back(field);
        begin = end + 1;
    }
    return fields;
}

std::optional<CatalogRows> SplitRows(TextView value, std::size_t recordSize) {
    CatalogRows rows{recordSize, {}};
    if (value.size() >= kShortestCatalog) {
        rows.Fields = SplitFields(value);
    }
    if (rows.Fields.size() % recordSize != 0) {
        return std::nullopt;
    }
    return rows;
}

Text CatalogValue(Run& run, const Catalog& catalog, TextView fallback) {
    return GetSetting(run, run.AppName, kOptions, catalog.Key, fallback);
}

void ReportDamage(Run& run, TextView errorName, TextView value) {
    AskUser(run, "",
            Join(run.AppName, " experienced a probable registry error.", NewLine, "Error : ", errorName, " = ", value,
                 NewLine, "Please contact technical support."));
}

std::optional<CatalogRows> ReadCatalog(Run& run, const Catalog& catalog, TextView fallback) {
    const Text value = CatalogValue(run, catalog, fallback);
    auto rows = SplitRows(value, catalog.RecordSize);
    if (!rows) {
        ReportDamage(run, catalog.ErrorName, value);
        EndProgram(run);
    }
    return rows;
}

bool StoreCatalog(Run& run, TextView key, TextView value) {
    const auto stored = run.System.Settings.Read(run.AppName, kOptions, key);
    return (stored && *stored == value) || Save(run, kOptions, key, value);
}

void AppendRecord(Text& list, TextView record) {
    if (!list.empty()) {
        list += ';';
    }
    list += record;
}

bool SaveCatalog(Run& run, CatalogLists& lists, TextView key, const ListBox& list) {
    return StoreCatalog(run, key, WithHidden(lists, key, RowsOf(list)));
}

std::size_t SavedLength(CatalogLists& lists, TextView key, const ListBox& list) {
    return WithHidden(lists, key, RowsOf(list)).size();
}

bool SaveCatalog(Run& run, CatalogLists& lists, TextView key, const ImageCombo& list) {
    Text rows;
    for (const ImageComboItem& item : list.Items) {
        AppendRecord(rows, Join(Trim(item.Title), ";", Trim(item.Key)));
    }
    return StoreCatalog(run, key, WithHidden(lists, key, std::move(rows)));
}

int StoredPosition(Run& run, TextView key, Index fallback, std::size_t rows) {
    if (rows == 0) {
        return -1;
    }
    return std::clamp<int>(GetNumber(run, kOptions, key, fallback), 0, static_cast<int>(rows) - 1);
}

int RepairedPosition(Run& run, TextView key, Index fallback, std::size_t rows) {
    const int position = StoredPosition(run, key, fallback, rows);
    if (rows != 0 && position != GetNumber(run, kOptions, key, fallback)) {
        Save(run, kOptions, key, position);
    }
    return position;
}

int StoredCheck(Run& run, TextView key, Index fallback) {
    const Index state = GetNumber(run, kOptions, key, fallback);
    return state == 1 || state == 2 ? state : 0;
}

bool FitsAField(TextView name) {
    return std::none_of(name.begin(), name.end(),
                        [](char c) { return c == ';' || c == '\x7F' || static_cast<unsigned char>(c) < ' '; });
}

}  // namespace lv
