// foundation/forms/wrapped_label.h
//
// A label of a few lines, which breaks its text at the words.

#pragma once

#include <wx/stattext.h>

namespace lv {

/// As wide as its place; what goes beyond its lines is cut off with an ellipsis, and the tip has it whole.
class WrappedLabel : public wxStaticText {
  public:
    WrappedLabel(wxWindow* parent, int lines);

    void SetLabel(const wxString& label) override;
    /// The text as it was set.
    [[nodiscard]] wxString GetLabel() const override { return text_; }

  private:
    void Break();

    int lines_;
    wxString text_;
};

}  // namespace lv
