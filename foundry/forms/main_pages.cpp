#include "foundry/forms/main_pages.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/listbox.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <string>

#include "foundation/field_strings.h"
#include "foundation/forms/screen_fit.h"
#include "foundation/forms/wx_text.h"
#include "foundry/editor/aliases_page.h"
#include "foundry/editor/lifecycle.h"
#include "foundry/editor/player_page.h"
#include "foundry/editor/script_looks.h"
#include "foundry/forms/row_pages.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

constexpr int kNameLetters = 20;
constexpr int kPositionHeight = 6;  // at 100 %
constexpr int kAliasRows = 7;
constexpr int kRoomForAll = 1000;  // at 100 %: that name, picture and button need beside each other
constexpr int kFrameLetters = 34;

/// A text with CR LF, as a field of several lines has it.
wxString ToLines(TextView text) {
    wxString lines = ToWx(text);
    lines.Replace("\r\n", "\n");
    return lines;
}

Text FromLines(const wxString& lines) {
    wxString text = lines;
    text.Replace("\n", "\r\n");
    return FromWx(text);
}

wxSizer* MakePositions(FigParts& parts, wxWindow* page, int width) {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    Fig_Frm& form = parts.Model;
    for (int position = 1; position <= kNameLength; ++position) {
        const ColorLabel& cell = form.NamePosition_Lbl[static_cast<std::size_t>(position)];
        CellLabel* label = parts.MakeCell(page, wxString::Format("NamePosition_Lbl(%d)", position), [&cell] {
            return CellLook{.Back = cell.BackColor, .Visible = cell.Visible};
        });
        label->SetMinSize(wxSize(width / kNameLength, page->FromDIP(kPositionHeight)));
        row->Add(label);
    }
    return row;
}

class FrameMaker {
  public:
    FrameMaker(FigParts& parts, wxWindow* page, const wxString& caption)
        : Parts(parts), Frame(new wxStaticBoxSizer(wxVERTICAL, page, caption)), Box(Frame->GetStaticBox()) {
        Frame->SetMinSize(kFrameLetters * page->GetTextExtent("n").x, -1);
    }

    void Add(wxWindow* window) { Frame->Add(window, wxSizerFlags().Border(wxALL, kPageGap)); }
    void Add(wxSizer* sizer) { Frame->Add(sizer, wxSizerFlags().Border(wxALL, kPageGap)); }

    FigParts& Parts;
    wxStaticBoxSizer* Frame;
    wxWindow* Box;
};

wxSizer* MakeAutoSave(FigParts& parts, wxWindow* page) {
    Fig_Frm& form = parts.Model;
    FrameMaker frame(parts, page, "Auto Save");
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(parts.MakeCheck(frame.Box, "AutoSaveEnable_Chk", form.AutoSaveEnable_Chk,
                             [&form] { AutoSaveEnable_Chk_Click(form); }),
             wxSizerFlags().CenterVertical());
    row->Add(parts.MakeList(
                 frame.Box, "Minutes_Cbo", form.Minutes_Cbo, [&form] { Minutes_Cbo_Click(form); },
                 "Minutes between two auto saves"),
             wxSizerFlags().Border(wxLEFT | wxRIGHT, kPageGap));
    row->Add(parts.MakeLabel(frame.Box, "Label2", form.Label2), wxSizerFlags().CenterVertical());
    frame.Add(row);
    frame.Add(parts.MakeCheck(frame.Box, "AutoSaveWarning_Chk", form.AutoSaveWarning_Chk,
                              [&form] { AutoSaveWarning_Chk_Click(form); }));
    return frame.Frame;
}

wxSizer* MakeSaveNow(FigParts& parts, wxWindow* page) {
    Fig_Frm& form = parts.Model;
    FrameMaker frame(parts, page, "Save Script Now");
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(parts.MakeButton(frame.Box, "View_Cmd(6)", form.View_Cmd[6], [&form] { View_Cmd_Click(form, 6); }));
    row->Add(parts.MakeButton(frame.Box, "View_Cmd(7)", form.View_Cmd[7], [&form] { View_Cmd_Click(form, 7); }),
             wxSizerFlags().Border(wxLEFT, kPageGap));
    frame.Add(row);
    frame.Add(
        parts.MakeCheck(frame.Box, "ExitOnSave_Chk", form.ExitOnSave_Chk, [&form] { ExitOnSave_Chk_Click(form); }));
    return frame.Frame;
}

wxSizer* MakeLook(FigParts& parts, wxWindow* page) {
    Fig_Frm& form = parts.Model;
    FrameMaker frame(parts, page, "Look Into This Script");
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(
        parts.MakeButton(frame.Box, "ShowChanges_Cmd", form.ShowChanges_Cmd, [&form] { ShowChanges_Cmd_Click(form); }));
    row->Add(parts.MakeButton(frame.Box, "Versions_Cmd", form.Versions_Cmd, [&form] { Versions_Cmd_Click(form); }),
             wxSizerFlags().Border(wxLEFT, kPageGap));
    frame.Add(row);
    auto* more = new wxBoxSizer(wxHORIZONTAL);
    more->Add(parts.MakeButton(frame.Box, "FileOrder_Cmd", form.FileOrder_Cmd, [&form] { FileOrder_Cmd_Click(form); }));
    more->Add(
        parts.MakeButton(frame.Box, "AliasGraph_Cmd", form.AliasGraph_Cmd, [&form] { AliasGraph_Cmd_Click(form); }),
        wxSizerFlags().Border(wxLEFT, kPageGap));
    more->Add(
        parts.MakeButton(frame.Box, "ScriptCheck_Cmd", form.ScriptCheck_Cmd, [&form] { ScriptCheck_Cmd_Click(form); }),
        wxSizerFlags().Border(wxLEFT, kPageGap));
    frame.Add(more);
    return frame.Frame;
}

wxSizer* MakeExit(FigParts& parts, wxWindow* page) {
    Fig_Frm& form = parts.Model;
    FrameMaker frame(parts, page, "Exit SetupFoundry Now");
    frame.Add(parts.MakeButton(frame.Box, "UnloadSF_Cmd", form.UnloadSF_Cmd, [&form] { UnloadSF_Cmd_Click(form); }));
    frame.Add(parts.MakeLabel(frame.Box, "Label3", form.Label3));
    return frame.Frame;
}

}  // namespace

NamePicture* MakeNameRow(FigParts& parts, wxWindow* page, wxSizer* rows) {
    Fig_Frm& form = parts.Model;
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    auto* field = new wxBoxSizer(wxVERTICAL);
    wxTextCtrl* name = parts.MakeText(
        page, "Name_Txt", form.Document.Name_Txt, [&form] { Name_Txt_Change(form); }, "Player's name");
    name->SetMinSize(wxSize(kNameLetters * page->GetTextExtent("n").x, -1));
    name->Bind(wxEVT_CHAR, [&form, name](wxKeyEvent& event) {
        const wxChar typed = event.GetUnicodeKey();
        if (typed < ' ' || typed > 126 || event.HasModifiers()) {
            event.Skip();
            return;
        }
        const char becomes = Name_Txt_KeyPress(form, static_cast<char>(typed));
        if (becomes == typed) {
            event.Skip();
        } else {
            name->WriteText(wxString(becomes));
        }
    });
    field->Add(name, wxSizerFlags().Expand());
    field->Add(parts.MakeLabel(page, "Label6", form.Label6), wxSizerFlags().Border(wxTOP, kCellGap));
    row->Add(field, wxSizerFlags().Border(wxRIGHT, 2 * kPageGap));
    auto* picture = new NamePicture(page, form);
    auto* shown = new wxBoxSizer(wxVERTICAL);
    shown->Add(picture);
    shown->Add(MakePositions(parts, page, picture->GetSize().x),
               wxSizerFlags().Border(wxTOP, kCellGap).ReserveSpaceEvenIfHidden());
    row->Add(shown, wxSizerFlags().Border(wxRIGHT, 2 * kPageGap));
    wxButton* letters = parts.MakeButton(page, "ViewCustomLetters_Cmd", form.ViewCustomLetters_Cmd,
                                         [&form] { ViewCustomLetters_Cmd_Click(form); });
    if (WorkArea(*page).width < page->FromDIP(kRoomForAll)) {
        shown->Add(letters, wxSizerFlags().Border(wxTOP, kCellGap));
    } else {
        row->Add(letters);
    }
    rows->Add(row, wxSizerFlags().Expand().Border(wxALL, kPageGap));
    parts.Controls.OnShow([picture] {
        picture->ShowState();
        return false;
    });
    return picture;
}

void MakeAliasPage(FigParts& parts, wxWindow* page) {
    Fig_Frm& form = parts.Model;
    auto* rows = new wxBoxSizer(wxVERTICAL);
    auto* list = new wxListBox(page, wxID_ANY, wxDefaultPosition, wxSize(-1, kAliasRows * parts.RowHeight(page)), 0,
                               nullptr, wxLB_SINGLE | wxLB_HSCROLL);
    list->SetMinSize(list->GetSize());  // or all of its rows are measured at each layout
    parts.Controls.Bind("Alias_Lst", form.Alias_Lst, list, [] {});
    SetSpokenName(list->GetHandle(), "Aliases");
    list->Bind(wxEVT_LISTBOX_DCLICK,
               [&parts, &form](wxCommandEvent&) { parts.Controls.Run([&form] { EditAlias_Cmd_Click(form); }); });
    rows->Add(list, wxSizerFlags(1).Expand().Border(wxALL, kPageGap));
    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    const auto right = wxSizerFlags().CenterVertical().Border(wxRIGHT, kPageGap);
    buttons->Add(parts.MakeButton(page, "AddCustomAlias_Cmd", form.AddCustomAlias_Cmd,
                                  [&form] { AddCustomAlias_Cmd_Click(form); }),
                 right);
    buttons->Add(parts.MakeButton(page, "EditAlias_Cmd", form.EditAlias_Cmd, [&form] { EditAlias_Cmd_Click(form); }),
                 right);
    buttons->Add(
        parts.MakeButton(page, "DeleteAlias_Cmd", form.DeleteAlias_Cmd, [&form] { DeleteAlias_Cmd_Click(form); }),
        right);
    buttons->AddStretchSpacer();
    buttons->Add(parts.MakeList(
                     page, "StdAliases_Cbo", form.StdAliases_Cbo, [] {}, "Standard aliases"),
                 right);
    buttons->Add(parts.MakeButton(page, "AddStandardAlias_Cmd", form.AddStandardAlias_Cmd,
                                  [&form] { AddStandardAlias_Cmd_Click(form); }),
                 wxSizerFlags().CenterVertical());
    rows->Add(buttons, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, kPageGap));
    rows->Add(MakeAliasRows(parts, page), wxSizerFlags().Expand().Border(wxALL, kPageGap));
    page->SetSizer(rows);
}

void MakeFreeFormPage(FigParts& parts, wxWindow* page) {
    Fig_Frm& form = parts.Model;
    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(
        parts.MakeList(
            page, "Section_Cbo", form.Document.Section_Cbo, [&form] { Section_Cbo_Click(form); }, "Section of the ini"),
        wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, kPageGap));
    auto* text = new wxTextCtrl(page, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxTE_MULTILINE | wxTE_DONTWRAP);
    text->SetFont(wxFont(wxFontInfo(text->GetFont().GetPointSize()).Family(wxFONTFAMILY_TELETYPE)));
    SetSpokenName(text->GetHandle(), "Free form additions");
    text->SetName("FreeForm_Txt(0)");  // until a section is shown
    rows->Add(text, wxSizerFlags(1).Expand().Border(wxALL, kPageGap));
    page->SetSizer(rows);
    struct Shown {
        std::size_t Section = static_cast<std::size_t>(-1);
        lv::Text Text;
    };
    const auto shown = std::make_shared<Shown>();
    text->Bind(wxEVT_TEXT, [&parts, &form, text, shown](wxCommandEvent&) {
        const Text typed = FromLines(text->GetValue());
        if (typed != shown->Text) {
            shown->Text = typed;
            parts.Controls.Run([&] { FreeForm_Txt_Change(form, typed); });
        }
    });
    // The script may be long: what stands in the field is remembered, not asked for.
    parts.Controls.OnShowLong(text, [&form, text, shown] {
        const ScriptDocument& document = form.Document;
        const std::size_t section =
            document.Section_Cbo.HasSelection() ? static_cast<std::size_t>(document.Section_Cbo.ListIndex) : 0;
        if (section >= document.Sections.size()) {
            return false;
        }
        if (shown->Section != section) {
            text->SetName(wxString::Format("FreeForm_Txt(%d)", static_cast<int>(section)));
        } else if (shown->Text == document.Sections[section].Text) {
            return false;
        }
        *shown = {section, document.Sections[section].Text};
        text->ChangeValue(ToLines(shown->Text));
        return false;
    });
}

void MakeSavePage(FigParts& parts, wxWindow* page) {
    auto* frames = new wxBoxSizer(wxVERTICAL);
    for (wxSizer* frame :
         {MakeAutoSave(parts, page), MakeSaveNow(parts, page), MakeExit(parts, page), MakeLook(parts, page)}) {
        frames->Add(frame, wxSizerFlags().Expand().Border(wxALL, kPageGap));
    }
    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(frames);
    page->SetSizer(rows);
}

}  // namespace lv
