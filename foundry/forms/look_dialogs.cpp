#include "foundry/forms/look_dialogs.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/listbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <vector>

#include "foundation/forms/modal_form.h"
#include "foundation/forms/wx_text.h"
#include "foundry/forms/difference_view.h"
#include "foundry/look/alias_graph_frm.h"
#include "foundry/look/changes_frm.h"
#include "foundry/look/file_order_frm.h"
#include "foundry/look/script_check_frm.h"
#include "foundry/look/script_text_frm.h"
#include "foundry/look/versions_frm.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

constexpr long kLookStyle = wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER | wxMAXIMIZE_BOX;
constexpr int kGap = 8;
constexpr int kWidth = 860;  // of the lists, at 100 %
constexpr int kRowsHeight = 300;
constexpr int kListHeight = 120;
constexpr int kLossesHeight = 150;  // half of the rows below them, however high the window is
constexpr int kLossLines = 3;

wxFont FixedWidth(const wxWindow& window) {
    return wxFontInfo(window.GetFont().GetPointSize()).Family(wxFONTFAMILY_TELETYPE);
}

class LookForm : public ModalForm {
  public:
    LookForm(wxWindow* owner, ModalWindow& window, std::function<void()> cancel)
        : ModalForm(owner, window, std::move(cancel), kLookStyle) {}

    /// A list of at least that height. What height the window has beyond is shared among its lists.
    wxListBox* AddList(const char* name, ListBox& model, TextView spoken, const std::function<void()>& click,
                       int height = kListHeight) {
        auto* list =
            new wxListBox(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(kWidth, height)), 0, nullptr, wxLB_HSCROLL);
        Controls.Bind(name, model, list, click);
        SetSpokenName(list->GetHandle(), ToUtf8(spoken));
        AddShared(list, height);
        return list;
    }

    void AddDifference(const char* name, DifferenceList& model, TextView spoken) {
        auto* view = new DifferenceView(this, name, model);
        view->SetMinSize(FromDIP(wxSize(kWidth, kRowsHeight)));
        SetSpokenName(view->GetHandle(), ToUtf8(spoken));
        for (wxWindow* part : view->GetChildren()) {
            SetSpokenName(part->GetHandle(), ToUtf8(spoken));  // the toolkit's own list is made of several
        }
        Controls.OnShow([view] {
            view->ShowState();
            return false;
        });
        AddShared(view, kRowsHeight);
    }

    /// A text of several lines that is broken at its words, and can be scrolled and copied.
    void AddReading(const char* name, TextBox& model, TextView spoken, int lines) {
        auto* text = new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                                    wxTE_MULTILINE | wxTE_READONLY | wxTE_BESTWRAP);
        text->SetMinSize(wxSize(-1, text->GetSizeFromTextSize(-1, text->GetCharHeight() * lines).y + kGap));
        text->SetBackgroundColour(GetBackgroundColour());
        Controls.Bind(name, model, text, [] {});
        SetSpokenName(text->GetHandle(), ToUtf8(spoken));
        AddWide(text);
    }

    void AddButtons(std::initializer_list<wxButton*> buttons) {
        auto* row = new wxBoxSizer(wxHORIZONTAL);
        row->AddStretchSpacer();
        for (wxButton* button : buttons) {
            row->Add(button, wxSizerFlags().Border(wxLEFT | wxBOTTOM, kGap));
        }
        AddWide(row);
        Arrange();
    }

  private:
    /// Each has of the height what it has at least, with its border: so none gets more than that at first.
    void AddShared(wxWindow* window, int height) { AddWide(window, height + 2 * kGap); }
};

std::unique_ptr<wxDialog> MakeFileOrder(wxWindow* owner, FileOrder_Frm& order) {
    auto form = std::make_unique<LookForm>(owner, order, [&order] { FileOrder_Close_Cmd_Click(order); });
    form->AddWide(form->MakeLabel(form.get(), "Note_Lbl", order.Note_Lbl));
    form->AddWide(form->MakeLabel(form.get(), "Files_Lbl", order.Files_Lbl));
    form->AddList("Files_Lst", order.Files_Lst, order.Files_Lbl.Caption,
                  [&order] { FileOrder_Files_Lst_Click(order); });
    auto* find = new wxTextCtrl(form.get(), wxID_ANY);
    form->Controls.Bind("Wanted_Txt", order.Wanted_Txt, find, [&order] { FileOrder_Wanted_Txt_Change(order); });
    form->AddField(order.Wanted_Lbl, "Wanted_Lbl", find);
    form->AddList("Set_Lst", order.Set_Lst, "What is set, and by whom last",
                  [&order] { FileOrder_Set_Lst_Click(order); });
    form->AddWide(form->MakeLabel(form.get(), "Setters_Lbl", order.Setters_Lbl));
    form->AddList("Setters_Lst", order.Setters_Lst, "Who sets it", [&order] { FileOrder_Setters_Lst_Click(order); });
    form->AddButtons({form->MakeButton("Show_Cmd", order.Show_Cmd, [&order] { FileOrder_Show_Cmd_Click(order); }),
                      form->MakeButton("Close_Cmd", order.Close_Cmd, [&order] { FileOrder_Close_Cmd_Click(order); })});
    return form;
}

std::unique_ptr<wxDialog> MakeAliasGraph(wxWindow* owner, AliasGraph_Frm& graph) {
    auto form = std::make_unique<LookForm>(owner, graph, [&graph] { AliasGraph_Close_Cmd_Click(graph); });
    auto* way = new wxChoice(form.get(), wxID_ANY);
    form->Controls.Bind("Way_Cbo", graph.Way_Cbo, way, [&graph] { AliasGraph_Way_Cbo_Click(graph); });
    form->AddField(graph.Way_Lbl, "Way_Lbl", way);
    form->AddWide(form->MakeLabel(form.get(), "Tree_Lbl", graph.Tree_Lbl));
    wxListBox* const tree = form->AddList(
        "Tree_Lst", graph.Tree_Lst, "Aliases and keys", [&graph] { AliasGraph_Tree_Lst_Click(graph); }, kRowsHeight);
    tree->SetFont(FixedWidth(*tree));  // each depth under the other
    Binder& controls = form->Controls;
    tree->Bind(wxEVT_KEY_DOWN, [&graph, &controls](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_RIGHT) {
            controls.Run([&graph] { AliasGraph_OpenRow(graph); });
        } else if (event.GetKeyCode() == WXK_LEFT) {
            controls.Run([&graph] { AliasGraph_CloseRow(graph); });
        } else {
            event.Skip();
        }
    });
    tree->Bind(wxEVT_LISTBOX_DCLICK,
               [&graph, &controls](wxCommandEvent&) { controls.Run([&graph] { AliasGraph_Open_Cmd_Click(graph); }); });
    form->AddButtons({form->MakeButton("Open_Cmd", graph.Open_Cmd, [&graph] { AliasGraph_Open_Cmd_Click(graph); }),
                      form->MakeButton("Close_Cmd", graph.Close_Cmd, [&graph] { AliasGraph_Close_Cmd_Click(graph); })});
    return form;
}

std::unique_ptr<wxDialog> MakeScriptCheck(wxWindow* owner, ScriptCheck_Frm& check) {
    auto form = std::make_unique<LookForm>(owner, check, [&check] { ScriptCheck_Close_Cmd_Click(check); });
    form->AddWide(form->MakeLabel(form.get(), "Note_Lbl", check.Note_Lbl));
    form->AddWide(form->MakeLabel(form.get(), "Findings_Lbl", check.Findings_Lbl));
    form->AddList(
        "Findings_Lst", check.Findings_Lst, "Findings", [&check] { ScriptCheck_Findings_Lst_Click(check); },
        kRowsHeight);
    form->AddButtons(
        {form->MakeButton("Show_Cmd", check.Show_Cmd, [&check] { ScriptCheck_Show_Cmd_Click(check); }),
         form->MakeButton("Close_Cmd", check.Close_Cmd, [&check] { ScriptCheck_Close_Cmd_Click(check); })});
    return form;
}

std::unique_ptr<wxDialog> MakeScriptText(wxWindow* owner, ScriptText_Frm& script) {
    auto form = std::make_unique<LookForm>(owner, script, [&script] { ScriptText_Close_Cmd_Click(script); });
    form->AddWide(form->MakeLabel(form.get(), "Place_Lbl", script.Place_Lbl));
    wxListBox* const lines = form->AddList(
        "Lines_Lst", script.Lines_Lst, "The script", [] {}, kRowsHeight);
    lines->SetFont(FixedWidth(*lines));
    form->AddButtons(
        {form->MakeButton("Close_Cmd", script.Close_Cmd, [&script] { ScriptText_Close_Cmd_Click(script); })});
    if (script.Lines_Lst.HasSelection()) {
        lines->EnsureVisible(script.Lines_Lst.ListIndex);
    }
    return form;
}

/// Lists and texts would keep Enter to themselves.
void PressDefaultOnEnter(wxDialog& form, const std::vector<const char*>& names) {
    for (const char* const name : names) {
        wxWindow::FindWindowByName(name, &form)->Bind(wxEVT_CHAR_HOOK, [&form](wxKeyEvent& event) {
            const bool isEnter = event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER;
            auto* const button = dynamic_cast<wxButton*>(form.GetDefaultItem());
            if (!isEnter || event.HasAnyModifiers() || button == nullptr || !button->IsEnabled()) {
                event.Skip();
                return;
            }
            wxCommandEvent press(wxEVT_BUTTON, button->GetId());
            press.SetEventObject(button);
            button->Command(press);
        });
    }
}

std::unique_ptr<wxDialog> MakeChanges(wxWindow* owner, Changes_Frm& changes) {
    auto form = std::make_unique<LookForm>(owner, changes, [&changes] { Changes_Close_Cmd_Click(changes); });
    form->AddWide(form->MakeLabel(form.get(), "Losses_Lbl", changes.Losses_Lbl));
    form->AddList(
        "Losses_Lst", changes.Losses_Lst, "What the save changes for the game",
        [&changes] { Changes_Losses_Lst_Click(changes); }, kLossesHeight);
    form->AddReading("Loss_Txt", changes.Loss_Txt, "The selected row", kLossLines);
    form->AddWide(form->MakeLabel(form.get(), "Difference_Lbl", changes.Difference_Lbl));
    form->AddDifference("Difference_Lst", changes.Difference_Lst, "The file and what is saved");
    const auto make = [&](const char* name, CommandButton& button, void (*click)(Changes_Frm&)) {
        return form->MakeButton(name, button, [&changes, click] { click(changes); });
    };
    wxButton* const next = make("NextChange_Cmd", changes.NextChange_Cmd, Changes_NextChange_Cmd_Click);
    wxButton* const keep = make("Keep_Cmd", changes.Keep_Cmd, Changes_Keep_Cmd_Click);
    wxButton* const save = make("Save_Cmd", changes.Save_Cmd, Changes_Save_Cmd_Click);
    wxButton* const close = make("Close_Cmd", changes.Close_Cmd, Changes_Close_Cmd_Click);
    form->AddButtons({next, keep, save, close});
    (changes.Keep_Cmd.Default ? keep : close)->SetDefault();
    PressDefaultOnEnter(*form, {"Losses_Lst", "Loss_Txt", "Difference_Lst"});
    return form;
}

std::unique_ptr<wxDialog> MakeVersions(wxWindow* owner, Versions_Frm& versions) {
    auto form = std::make_unique<LookForm>(owner, versions, [&versions] { Versions_Close_Cmd_Click(versions); });
    form->AddWide(form->MakeLabel(form.get(), "Damage_Lbl", versions.Damage_Lbl));
    form->AddWide(form->MakeLabel(form.get(), "Versions_Lbl", versions.Versions_Lbl));
    form->AddList("Versions_Lst", versions.Versions_Lst, "Versions", [&versions] { Versions_Lst_Click(versions); });
    form->AddWide(form->MakeLabel(form.get(), "Difference_Lbl", versions.Difference_Lbl));
    form->AddDifference("Difference_Lst", versions.Difference_Lst, "What bringing it back changes");
    form->AddButtons(
        {form->MakeButton("NextChange_Cmd", versions.NextChange_Cmd,
                          [&versions] { Versions_NextChange_Cmd_Click(versions); }),
         form->MakeButton("BringBack_Cmd", versions.BringBack_Cmd,
                          [&versions] { Versions_BringBack_Cmd_Click(versions); }),
         form->MakeButton("Close_Cmd", versions.Close_Cmd, [&versions] { Versions_Close_Cmd_Click(versions); })});
    return form;
}

}  // namespace

std::unique_ptr<wxDialog> MakeLookDialog(wxWindow* owner, ModalWindow& window) {
    if (auto* changes = dynamic_cast<Changes_Frm*>(&window)) {
        return MakeChanges(owner, *changes);
    }
    if (auto* order = dynamic_cast<FileOrder_Frm*>(&window)) {
        return MakeFileOrder(owner, *order);
    }
    if (auto* graph = dynamic_cast<AliasGraph_Frm*>(&window)) {
        return MakeAliasGraph(owner, *graph);
    }
    if (auto* check = dynamic_cast<ScriptCheck_Frm*>(&window)) {
        return MakeScriptCheck(owner, *check);
    }
    if (auto* script = dynamic_cast<ScriptText_Frm*>(&window)) {
        return MakeScriptText(owner, *script);
    }
    if (auto* versions = dynamic_cast<Versions_Frm*>(&window)) {
        return MakeVersions(owner, *versions);
    }
    return nullptr;
}

}  // namespace lv
