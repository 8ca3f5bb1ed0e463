#include "foundry/forms/editor_tabs.h"

#include <array>
#include <vector>

#include "foundry/editor/bindings_page.h"
#include "foundry/editor/lifecycle.h"
#include "foundry/editor/settings_pages.h"
#include "foundry/forms/main_pages.h"
#include "foundry/forms/row_pages.h"
#include "foundry/forms/settings_forms.h"

namespace lv {

namespace {

constexpr int kTabHeight = 39;

constexpr std::array<const char*, 5> kMainPages = {"Player_Page", "Bindings_Page", "Aliases_Page", "FreeForm_Page",
                                                   "Save_Page"};

// GTK complains of tabs without room for their captions, though they are to get it the next moment.
void GiveRoom(wxWindow* window) {
    window->SetSize(window->FromDIP(wxSize(kEditorWidth, kEditorHeight)));
}

wxNotebook* MakeTab(wxWindow* parent) {
    auto* tab = new wxNotebook(parent, wxID_ANY);
    GiveRoom(tab);
    return tab;
}

wxPanel* MakePage(LatePages& late, wxNotebook* tabs) {
    auto* page = new wxPanel(tabs);
    GiveRoom(page);
    late.Add(page);
    return page;
}

wxWindow* MakePlayerPage(FigParts& parts, LatePages& late, wxNotebook* tabs) {
    Fig_Frm& form = parts.Model;
    wxPanel* const page = MakePage(late, tabs);
    auto* rows = new wxBoxSizer(wxVERTICAL);
    MakeNameRow(parts, page, rows);
    wxNotebook* const options = MakeTab(page);
    std::vector<wxWindow*> pages;
    pages.reserve(form.Document.Options_Tab.Pages.size());
    for (int which = 0; which < static_cast<int>(form.Document.Options_Tab.Pages.size()); ++which) {
        pages.push_back(late.AddLate(options, [&parts, which](wxPanel* made) { MakeOptionsPage(parts, made, which); }));
    }
    parts.Controls.Bind("Options_Tab", form.Document.Options_Tab, options, pages,
                        [&form](int which) { Options_Tab_Click(form, which); });
    rows->Add(options, wxSizerFlags(1).Expand().Border(wxALL, kPageGap / 2));
    page->SetSizer(rows);
    return page;
}

wxWindow* MakeBindingsTabs(FigParts& parts, LatePages& late, wxNotebook* tabs) {
    Fig_Frm& form = parts.Model;
    wxPanel* const page = MakePage(late, tabs);
    wxNotebook* const bindings = MakeTab(page);
    std::vector<wxWindow*> pages;
    pages.reserve(form.Bindings_Tab.Pages.size());
    for (int which = 0; which < static_cast<int>(form.Bindings_Tab.Pages.size()); ++which) {
        pages.push_back(late.AddLate(bindings, [&parts, which](wxPanel* made) {
            MakeBindingsPage(parts, made, static_cast<BindingsPage>(which));
        }));
    }
    parts.Controls.Bind("Bindings_Tab", form.Bindings_Tab, bindings, pages,
                        [&form](int which) { Bindings_Tab_Click(form, which); });
    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(bindings, wxSizerFlags(1).Expand().Border(wxALL, kPageGap / 2));
    page->SetSizer(rows);
    return page;
}

}  // namespace

wxNotebook* MakeEditorTabs(wxWindow* parent, FigParts& parts, LatePages& late) {
    Fig_Frm& form = parts.Model;
    wxNotebook* const tabs = MakeTab(parent);
    const std::vector<wxWindow*> pages = {
        MakePlayerPage(parts, late, tabs), MakeBindingsTabs(parts, late, tabs),
        late.AddLate(tabs, [&parts](wxPanel* made) { MakeAliasPage(parts, made); }),
        late.AddLate(tabs, [&parts](wxPanel* made) { MakeFreeFormPage(parts, made); }),
        late.AddLate(tabs, [&parts](wxPanel* made) { MakeSavePage(parts, made); })};
    for (std::size_t i = 0; i < pages.size(); ++i) {
        pages[i]->SetName(kMainPages.at(i));
    }
    tabs->SetMinSize(wxSize(-1, EditorTabsHeight(tabs, parts, kPageRows)));
    parts.Controls.Bind("Main_Tab", form.Main_Tab, tabs, pages, [&form](int page) { Main_Tab_Click(form, page); });
    return tabs;
}

int EditorTabsHeight(const wxWindow* tabs, FigParts& parts, int rows) {
    return rows * (parts.RowHeight(tabs) + kCellGap) + 2 * tabs->FromDIP(kTabHeight) + 3 * kPageGap;
}

}  // namespace lv
