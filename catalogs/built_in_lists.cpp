#include "catalogs/built_in_lists.h"

#include "catalogs/catalog_store.h"
#include "foundation/padded_item.h"

namespace lv {

namespace {

// Each record but the last ends in the separator.
constexpr TextView kMemoryRecords[] = {
    "8 megabytes;-winmem 8;",   "12 megabytes;-winmem 12;", "16 megabytes;-winmem 16;", "24 megabytes;-winmem 24;",
    "32 megabytes;-winmem 32;", "40 megabytes;-winmem 40;", "48 megabytes;-winmem 48",
};

constexpr TextView kDemoRecords[] = {
    "None;playdemo nodemo.dem;",         "Quake Demo #1;playdemo demo1.dem;",   "Quake Demo #2;playdemo demo2.dem;",
    "Quake Demo #3;playdemo demo3.dem;", "Quake ][ Demo #1;demomap demo1.dm2;", "Quake ][ Demo #2;demomap demo2.dm2",
};

template <std::size_t Rows>
Text Concatenated(const TextView (&records)[Rows]) {
    Text list;
    for (const TextView record : records) {
        list += record;
    }
    return list;
}

void Fill(ListBox& list, const CatalogRows& rows) {
    list.Clear();
    for (std::size_t i = 0; i < rows.Count(); ++i) {
        list.Items.push_back(MakeItem(rows.Field(i, 0), rows.Field(i, 1)));
    }
}

}  // namespace

bool FillMemoryCombo(Run& run, CatalogLists& lists) {
    const Text defaults = Concatenated(kMemoryRecords);
    const auto rows = ReadCatalog(run, kMemory, defaults);
    if (!rows) {
        return false;
    }
    if (rows->Count() == 0) {
        ReportDamage(run, kMemory.ErrorName, CatalogValue(run, kMemory, defaults));
        EndProgram(run);
        return false;
    }
    Fill(lists.Mem_Cbo, *rows);
    lists.Mem_Cbo.ListIndex = StoredPosition(run, "MemoryPos", 2, rows->Count());
    return true;
}

bool FillDemoCombo(Run& run, CatalogLists& lists) {
    const auto rows = ReadCatalog(run, kDemos, Concatenated(kDemoRecords));
    if (!rows) {
        return false;
    }
    Fill(lists.Demo_Cbo, *rows);
    lists.Demo_Cbo.ListIndex = StoredPosition(run, "DemoPos", 0, rows->Count());
    return true;
}

}  // namespace lv
