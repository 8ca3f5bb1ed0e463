#include "catalogs/forms/path_form.h"

#include <wx/button.h>

#include "foundation/forms/search_keys.h"
#include "foundation/forms/wx_text.h"
#include "platform/toolkit/list_cursor.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

constexpr int kGap = 8;
constexpr int kIndent = 3;  // blanks a level

}  // namespace

PathForm::PathForm(wxWindow* owner, Path_Frm& form)
    : ModalForm(owner, form, [&form] { Path_Cancel_Cmd_Click(form); }), form_(form), place_(*this, form.Placement) {
    auto* drives = new wxChoice(this, wxID_ANY);
    SetSpokenName(drives->GetHandle(), "Drive");
    Controls.Bind("Drive1", form_.Drive1, drives, [this] {
        Path_Drive1_Change(form_);
        ShowDirectories();
    });
    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(drives, wxSizerFlags().Expand());
    directories_ = new wxListBox(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(380, 260)));
    directories_->SetName("Dir1");
    SetSpokenName(directories_->GetHandle(), "Directory");
    directories_->Bind(wxEVT_LISTBOX, [this](wxCommandEvent& event) { form_.Dir1.ListIndex = event.GetInt(); });
    const auto enter = [this] {
        const int row = directories_->GetSelection();
        if (row != wxNOT_FOUND) {
            Controls.Run([this, row] {
                Path_Dir1_DblClick(form_, row);
                ShowDirectories();
            });
        }
    };
    // GTK's list makes a double click of Enter, and presses the default button behind it, if that can be pressed.
    directories_->Bind(wxEVT_LISTBOX_DCLICK, [this, enter](wxCommandEvent&) {
        enter();
        ok_->Disable();
        CallAfter([this] { ok_->Enable(); });
    });
    directories_->Bind(wxEVT_CHAR_HOOK, [enter](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER) {
            enter();
        } else {
            event.Skip();
        }
    });
    directories_->Bind(wxEVT_CHAR, [this](wxKeyEvent& event) { Type(event); });
    SearchByTyping(directories_, {.Count = [this] { return form_.Dir1.Items.size(); },
                                  .Name = [this](std::size_t row) { return form_.Dir1.Items[row]; },
                                  .Selected = [this] { return form_.Dir1.ListIndex; },
                                  .Pick =
                                      [this](int row) {
                                          form_.Dir1.ListIndex = row;
                                          ShowDirectories();
                                      }});
    rows->Add(directories_, wxSizerFlags(1).Expand().Border(wxTOP | wxBOTTOM, kGap));
    rows->Add(MakeLabel(this, "Path_Lbl", form_.Path_Lbl), wxSizerFlags().Expand());
    AddWide(rows, 1);
    ShowDirectories();
    ok_ = MakeButton("OK_Cmd", form_.OK_Cmd, [this] { Path_OK_Cmd_Click(form_); });
    Finish(ok_, MakeButton("Cancel_Cmd", form_.Cancel_Cmd, [this] { Path_Cancel_Cmd_Click(form_); }));
    KeepSize();
    Path_Load(form_);  // a first place is the middle for this size
    place_.Put();
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        if (IsShown()) {
            KeepSize();
        }
    });
}

// In a short list, instead of the toolkit, which knows the rows with their blanks only.
void PathForm::Type(wxKeyEvent& event) {
    const Text letter = FromWx(wxString(event.GetUnicodeKey()));
    if (event.GetUnicodeKey() < WXK_SPACE || event.GetUnicodeKey() == WXK_DELETE || letter.size() != 1 ||
        event.GetModifiers() & ~wxMOD_SHIFT) {
        event.Skip();
        return;
    }
    Controls.Run([this, letter] {
        Path_Dir1_KeyPress(form_, letter[0]);
        ShowDirectories();
    });
}

void PathForm::KeepSize() {
    WindowPlacement& placement = form_.Placement;
    placement.WindowState = IsMaximized() ? kWindowMaximised : kWindowNormal;
    if (!IsMaximized()) {
        placement.Width = ToTwips(GetSize().x);
        placement.Height = ToTwips(GetSize().y);
    }
}

void PathForm::ShowDirectories() {
    if (shown_ != form_.DirPaths) {
        shown_ = form_.DirPaths;
        wxArrayString rows;
        for (std::size_t i = 0; i < form_.Dir1.Items.size(); ++i) {
            const int level = i < form_.DirLevels.size() ? form_.DirLevels[i] : 0;
            rows.Add(wxString(' ', static_cast<std::size_t>(level * kIndent)) + ToWx(form_.Dir1.Items[i]));
        }
        directories_->Set(rows);
    }
    if (form_.Dir1.HasSelection()) {
        directories_->SetSelection(form_.Dir1.ListIndex);
        directories_->EnsureVisible(form_.Dir1.ListIndex);
        PutListCursor(directories_->GetHandle(), form_.Dir1.ListIndex);
    }
}

}  // namespace lv
