#include "catalogs/built_in_lists.h"

#include "catalogs/catalog_store.h"
#include "foundation/padded_item.h"

namespace lv {

namespace {

void Fill(ListBox& list, const CatalogRows& rows) {
    list.Clear();
    for (std::size_t i = 0; i < rows.Count(); ++i) {
        list.Items.push_back(MakeItem(rows.Field(i, 0), rows.Field(i, 1)));
    }
}

}  // namespace

bool FillMemoryCombo(Run& run, CatalogLists& lists) {
    const auto rows = ReadCatalog(run, kMemory, kBuiltInMemory);
    if (!rows) {
        return false;
    }
    if (rows->Count() == 0) {
        ReportDamage(run, kMemory.ErrorName, CatalogValue(run, kMemory, kBuiltInMemory));
        EndProgram(run);
        return false;
    }
    Fill(lists.Mem_Cbo, *rows);
    lists.Mem_Cbo.ListIndex = StoredPosition(run, "MemoryPos", 2, rows->Count());
    return true;
}

bool FillDemoCombo(Run& run, CatalogLists& lists) {
    const auto rows = ReadCatalog(run, kDemos, kBuiltInDemos);
    if (!rows) {
        return false;
    }
    Fill(lists.Demo_Cbo, *rows);
    lists.Demo_Cbo.ListIndex = StoredPosition(run, "DemoPos", 0, rows->Count());
    return true;
}

}  // namespace lv
