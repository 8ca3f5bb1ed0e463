// foundation/forms/question_box_form.h
//
// Shows QuestionBox_Frm.

#pragma once

#include <wx/dialog.h>
#include <wx/font.h>

#include <vector>

#include "foundation/question_box.h"

class wxButton;
class wxCheckBox;
class wxTextCtrl;

namespace lv {

/// That files are shown in.
wxFont FixedWidthFont();

class QuestionBoxForm : public wxDialog {
  public:
    /// Without an owner the box stands in the middle of the screen.
    QuestionBoxForm(wxWindow* owner, QuestionBox_Frm& box);

  private:
    wxSizer* MakeMessage();
    wxSizer* MakeButtons();
    void CloseByTheQuietButton();
    void FitTextToRoom(wxSize wanted);
    void Press(int index);

    QuestionBox_Frm& box_;
    wxTextCtrl* text_ = nullptr;
    wxCheckBox* notAgain_ = nullptr;
    std::vector<wxButton*> buttons_;
};

}  // namespace lv
