#include "launcher/forms/main_menu.h"

#include "foundation/forms/wx_text.h"

namespace lv {

namespace {

// Far from the toolkit's own numbers.
constexpr int kFirstId = 6000;

wxString LabelOf(const LV_Frm& window, const MenuRow& row) {
    const wxString caption = ToWx(window.Bar(row.Item).Caption);
    return *row.Key != '\0' ? caption + "\t" + row.Key : caption;
}

bool IsCheckable(MenuItem item) {
    return item == MenuItem::ShowAll_Bar_0 || item == MenuItem::ShowAll_Bar_1 || item == MenuItem::ShowAll_Bar_2 ||
           item == MenuItem::AlwaysOnTop_Bar;
}

void AppendItem(const LV_Frm& window, wxMenu& menu, const MenuRow& row) {
    const MenuItemState& state = window.Bar(row.Item);
    const int id = MenuIdOf(row.Item);
    if (IsMenu(row.Item)) {
        menu.Append(id, LabelOf(window, row), MakeMenu(window, row.Item));
    } else {
        menu.Append(id, LabelOf(window, row), "", IsCheckable(row.Item) ? wxITEM_CHECK : wxITEM_NORMAL);
        if (IsCheckable(row.Item)) {
            menu.Check(id, state.Checked);
        }
    }
    menu.Enable(id, state.Enabled);
}

}  // namespace

int MenuIdOf(MenuItem item) {
    return kFirstId + static_cast<int>(item);
}

wxMenu* MakeMenu(const LV_Frm& window, MenuItem parent) {
    auto* menu = new wxMenu;
    for (const MenuRow& row : MenuRows()) {
        if (row.Parent == parent) {
            AppendItem(window, *menu, row);
        }
    }
    return menu;
}

wxMenuBar* MakeMenuBar(const LV_Frm& window) {
    auto* bar = new wxMenuBar;
    for (const MenuRow& row : MenuRows()) {
        if (row.Parent == MenuItem::None) {
            bar->Append(MakeMenu(window, row.Item), LabelOf(window, row));
        }
    }
    return bar;
}

void ShowMenuState(const LV_Frm& window, wxMenuBar& bar) {
    std::size_t top = 0;
    for (const MenuRow& row : MenuRows()) {
        const MenuItemState& state = window.Bar(row.Item);
        if (row.Parent == MenuItem::None) {
            if (bar.IsEnabledTop(top) != state.Enabled) {
                bar.EnableTop(top, state.Enabled);
            }
            ++top;
            continue;
        }
        wxMenuItem* item = bar.FindItem(MenuIdOf(row.Item));
        const wxString label = LabelOf(window, row);
        if (item->GetItemLabel() != label) {
            item->SetItemLabel(label);
        }
        if (item->IsEnabled() != state.Enabled) {
            item->Enable(state.Enabled);
        }
        if (item->IsCheckable() && item->IsChecked() != state.Checked) {
            item->Check(state.Checked);
        }
    }
}

MenuItem MenuNamed(TextView name) {
    for (const MenuRow& row : MenuRows()) {
        if (row.Name == name && IsMenu(row.Item)) {
            return row.Item;
        }
    }
    return MenuItem::None;
}

}  // namespace lv
