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
           item == MenuItem::AlwaysOnTop_Bar || item == MenuItem::TakeLinks_Bar ||
           (item >= MenuItem::Setup_Bar_0 && item <= MenuItem::Setup_Bar_8);
}

void InsertItem(const LV_Frm& window, wxMenu& menu, std::size_t place, const MenuRow& row) {
    const MenuItemState& state = window.Bar(row.Item);
    const int id = MenuIdOf(row.Item);
    if (IsMenu(row.Item)) {
        menu.Insert(place, id, LabelOf(window, row), MakeMenu(window, row.Item));
    } else {
        menu.Insert(place, id, LabelOf(window, row), "", IsCheckable(row.Item) ? wxITEM_CHECK : wxITEM_NORMAL);
        if (IsCheckable(row.Item)) {
            menu.Check(id, state.Checked);
        }
    }
    menu.Enable(id, state.Enabled);
}

// In the order of the table, so that all before it are there already.
std::size_t PlaceOf(const LV_Frm& window, const MenuRow& wanted) {
    std::size_t place = 0;
    for (const MenuRow& row : MenuRows()) {
        if (row.Item == wanted.Item) {
            break;
        }
        place += row.Parent == wanted.Parent && window.Bar(row.Item).Visible ? 1U : 0U;
    }
    return place;
}

// The toolkit has no hidden items: what is hidden is taken out. True if the item is in its menu now.
bool ShowPresence(const LV_Frm& window, wxMenu& menu, const MenuRow& row) {
    wxMenuItem* const item = menu.FindItem(MenuIdOf(row.Item));
    const bool visible = window.Bar(row.Item).Visible;
    if (!visible && item != nullptr) {
        menu.Destroy(item);
    } else if (visible && item == nullptr) {
        InsertItem(window, menu, PlaceOf(window, row), row);
    }
    return visible;
}

// `bar` has each menu that stands in it at its turn among the rows.
wxMenu& MenuHolding(const wxMenuBar& bar, const MenuRow& row) {
    if (MenuRowOf(row.Parent).Parent != MenuItem::None) {
        return *bar.FindItem(MenuIdOf(row.Parent))->GetSubMenu();
    }
    std::size_t top = 0;
    for (const MenuRow& menu : MenuRows()) {
        if (menu.Item == row.Parent) {
            break;
        }
        top += menu.Parent == MenuItem::None ? 1U : 0U;
    }
    return *bar.GetMenu(top);
}

}  // namespace

int MenuIdOf(MenuItem item) {
    return kFirstId + static_cast<int>(item);
}

wxMenu* MakeMenu(const LV_Frm& window, MenuItem parent) {
    auto* menu = new wxMenu;
    for (const MenuRow& row : MenuRows()) {
        if (row.Parent == parent && window.Bar(row.Item).Visible) {
            InsertItem(window, *menu, menu->GetMenuItemCount(), row);
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
        if (!ShowPresence(window, MenuHolding(bar, row), row)) {
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
