#include "catalogs/editors/edit_memory.h"

#include "catalogs/catalog_store.h"
#include "foundation/numbers.h"
#include "foundation/padded_item.h"

namespace lv {

namespace {

struct RamRow {
    const char* Caption;
    int First;
    int Last;
    int Selected;
};

constexpr std::array<RamRow, 3> kRam = {{
    {"Lowest available memory option is", 8, 32, 0},
    {"Available options are separated by ", 1, 32, 3},
    {"Highest available memory option is", 8, 128, 8},
}};

int Picked(const EditMem_Frm& form, std::size_t index) {
    return ToIndex(form.Ram_Cbo[index].Selected());
}

}  // namespace

EditMem_Frm::EditMem_Frm(Run& owner, CatalogLists& lists)
    : EntryWindow(owner, "EditMem_Frm", EntryMode::Edit), Lists(lists) {
    Caption = "Edit Memory List";
    for (std::size_t i = 0; i < kRam.size(); ++i) {
        Label1[i].Caption = kRam[i].Caption;
        for (int size = kRam[i].First; size <= kRam[i].Last; ++size) {
            Ram_Cbo[i].Items.push_back(std::to_string(size));
        }
        Ram_Cbo[i].ListIndex = kRam[i].Selected;
        EditMem_Ram_Cbo_Click(*this, static_cast<int>(i));
    }
}

void EditMem_Ram_Cbo_Click(EditMem_Frm& form, int index) {
    const auto i = static_cast<std::size_t>(index);
    form.Label2[i].Caption = Picked(form, i) == 1 ? "megabyte." : "megabytes.";
}

void EditMem_OK_Cmd_Click(EditMem_Frm& form) {
    ListBox& list = form.Lists.Mem_Cbo;
    const int step = Picked(form, 1);
    const ListBox before = list;
    list.Clear();
    for (int size = Picked(form, 0); step > 0 && size <= Picked(form, 2); size += step) {
        const Text megabytes = std::to_string(size);
        list.Items.push_back(MakeItem(Join(megabytes, " Megabytes"), Join(kMemoryOption, Blank, megabytes)));
    }
    if (!list.Items.empty()) {
        list.ListIndex = 0;
    }
    if (!SaveCatalog(form.run, form.Lists, kMemory.Key, list)) {
        list = before;
        return;
    }
    form.DialogResult = true;
    form.Closed = true;
}

}  // namespace lv
