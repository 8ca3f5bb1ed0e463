// foundry/forms/difference_view.h
//
// Shows a DifferenceList: a row a line, both texts with their line numbers, and a mark between them for who only hears
// the list. Only the rows in sight are made.

#pragma once

#include <wx/listctrl.h>

#include "foundry/look/difference_list.h"

namespace lv {

class DifferenceView : public wxListCtrl {
  public:
    /// The list outlives the view.
    DifferenceView(wxWindow* parent, const wxString& name, DifferenceList& model);

    /// Brings the rows and the selection in line with the list.
    void ShowState();

  private:
    wxString OnGetItemText(long row, long column) const override;
    wxListItemAttr* OnGetItemAttr(long row) const override;
    void ShareWidth();

    DifferenceList& model_;
    int shown_ = -1;
    mutable wxListItemAttr changed_;
    mutable wxListItemAttr onlyLeft_;
    mutable wxListItemAttr onlyRight_;
};

}  // namespace lv
