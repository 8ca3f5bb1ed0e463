#include "launcher/forms/game_list_form.h"

#include <wx/button.h>
#include <wx/listctrl.h>
#include <wx/textctrl.h>

#include "foundation/forms/modal_form.h"
#include "foundation/forms/wx_text.h"
#include "launcher/played/game_list_frm.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

constexpr int kGap = 8;
constexpr int kTableWidth = 720;  // at 100 %
constexpr int kTableHeight = 340;
constexpr int kRowsOfAPage = 10;
constexpr int kColumnWidths[kGameColumns] = {220, 110, 140, 160, 80};

/// The table. Only the rows in sight are made.
class GameRows : public wxListCtrl {
  public:
    GameRows(wxWindow* parent, const GameList_Frm& form)
        : wxListCtrl(parent, wxID_ANY, wxDefaultPosition, parent->FromDIP(wxSize(kTableWidth, kTableHeight)),
                     wxLC_REPORT | wxLC_VIRTUAL | wxLC_SINGLE_SEL),
          form_(form) {
        SetName("Games_Lst");
        for (std::size_t column = 0; column < kGameColumns; ++column) {
            AppendColumn(ToWx(CaptionOf(static_cast<GameColumn>(column))), wxLIST_FORMAT_LEFT,
                         FromDIP(kColumnWidths[column]));
        }
    }

    void ShowState() {
        const GameTable& table = form_.Games_Lst;
        if (GetItemCount() != static_cast<long>(table.Rows.size())) {
            SetItemCount(static_cast<long>(table.Rows.size()));
        }
        ShowSortIndicator(static_cast<int>(table.SortedBy), !table.Descending);
        ShowSelection();
        Refresh();
    }

  private:
    void ShowSelection() {
        const long row = form_.Games_Lst.ListIndex;
        const long selected = GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
        if (selected >= 0 && selected != row) {
            SetItemState(selected, 0, wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED);
        }
        if (form_.Games_Lst.HasSelection()) {
            constexpr long kPicked = wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED;
            SetItemState(row, kPicked, kPicked);
            EnsureVisible(row);
        }
        wxString spoken = "Games";
        for (long column = 0; form_.Games_Lst.HasSelection() && column < static_cast<long>(kGameColumns); ++column) {
            const wxString cell = OnGetItemText(row, column);
            spoken += cell.empty() ? cell : ", " + cell;
        }
        // Where the toolkit draws the table itself, a part of it has the keyboard.
        SetSpokenName(GetHandle(), spoken.utf8_string());
        for (const wxWindow* part : GetChildren()) {
            SetSpokenName(part->GetHandle(), spoken.utf8_string());
        }
    }

    wxString OnGetItemText(long row, long column) const override {
        const std::vector<ListedGame>& rows = form_.Games_Lst.Rows;
        if (row < 0 || static_cast<std::size_t>(row) >= rows.size()) {
            return {};
        }
        return ToWx(CellOf(rows[static_cast<std::size_t>(row)], static_cast<GameColumn>(column), form_.Today));
    }

    const GameList_Frm& form_;
};

class GameListForm : public ModalForm {
  public:
    GameListForm(wxWindow* owner, GameList_Frm& form)
        : ModalForm(
              owner, form, [&form] { GameList_CloseGames_Cmd_Click(form); }, wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
          form_(form) {
        auto* search = new wxTextCtrl(this, wxID_ANY);
        search->SetHint(ToWx(form_.GameSearch_Txt.ToolTip));
        Controls.Bind("GameSearch_Txt", form_.GameSearch_Txt, search,
                      [this] { GameList_GameSearch_Txt_Change(form_); });
        AddField(form_.GameSearch_Lbl, "GameSearch_Lbl", search);
        search->Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& key) { Step(key); });
        rows_ = new GameRows(this, form_);
        BindRows();
        auto* table = new wxBoxSizer(wxVERTICAL);
        table->Add(rows_, wxSizerFlags(1).Expand());
        table->Add(MakeLabel(this, "GameCount_Lbl", form_.GameCount_Lbl), wxSizerFlags().Expand().Border(wxTOP, kGap));
        AddWide(table, 1);
        AddButtons();
        Arrange();
    }

  private:
    void BindRows() {
        Controls.OnShow([this] {
            showing_ = true;
            rows_->ShowState();
            showing_ = false;
            return false;
        });
        rows_->Bind(wxEVT_LIST_ITEM_SELECTED, [this](wxListEvent& event) {
            if (!showing_) {
                const auto row = static_cast<int>(event.GetIndex());
                Controls.Run([this, row] { GameList_Games_Lst_Click(form_, row); });
            }
        });
        rows_->Bind(wxEVT_LIST_ITEM_ACTIVATED,
                    [this](wxListEvent&) { Controls.Run([this] { GameList_PickGame_Cmd_Click(form_); }); });
        rows_->Bind(wxEVT_LIST_COL_CLICK, [this](wxListEvent& event) {
            const int column = event.GetColumn();
            if (column >= 0 && column < static_cast<int>(kGameColumns)) {
                Controls.Run([&] { GameList_Games_Lst_ColumnClick(form_, static_cast<GameColumn>(column)); });
            }
        });
    }

    /// The keys that have no use in a field of one line.
    void Step(wxKeyEvent& key) {
        const int step = key.GetKeyCode() == WXK_UP         ? -1
                         : key.GetKeyCode() == WXK_DOWN     ? 1
                         : key.GetKeyCode() == WXK_PAGEUP   ? -kRowsOfAPage
                         : key.GetKeyCode() == WXK_PAGEDOWN ? kRowsOfAPage
                                                            : 0;
        if (step == 0 || key.HasAnyModifiers()) {
            key.Skip();
            return;
        }
        Controls.Run([this, step] { GameList_Games_Lst_Step(form_, step); });
    }

    void AddButtons() {
        auto* buttons = new wxBoxSizer(wxHORIZONTAL);
        buttons->AddStretchSpacer();
        const auto add = [&](const char* name, CommandButton& model, void (*click)(GameList_Frm&)) {
            wxButton* const button = MakeButton(name, model, [this, click] { click(form_); });
            buttons->Add(button, wxSizerFlags().Border(wxLEFT | wxBOTTOM, kGap));
            return button;
        };
        add("PickGame_Cmd", form_.PickGame_Cmd, GameList_PickGame_Cmd_Click)->SetDefault();
        add("LaunchGame_Cmd", form_.LaunchGame_Cmd, GameList_LaunchGame_Cmd_Click);
        add("CloseGames_Cmd", form_.CloseGames_Cmd, GameList_CloseGames_Cmd_Click);
        AddWide(buttons);
    }

    GameList_Frm& form_;
    GameRows* rows_ = nullptr;
    bool showing_ = false;
};

}  // namespace

std::unique_ptr<wxDialog> MakeGameListForm(wxWindow* owner, ModalWindow& window) {
    auto* const games = dynamic_cast<GameList_Frm*>(&window);
    return games == nullptr ? nullptr : std::make_unique<GameListForm>(owner, *games);
}

}  // namespace lv
