// video/forms/leader_line.h
//
// The line that leads the eye from a caption to the list at the row's other end.

#pragma once

#include <wx/window.h>

namespace lv {

class LeaderLine : public wxWindow {
  public:
    explicit LeaderLine(wxWindow* parent);

    [[nodiscard]] bool AcceptsFocus() const override { return false; }
    [[nodiscard]] bool AcceptsFocusFromKeyboard() const override { return false; }

  protected:
    [[nodiscard]] wxSize DoGetBestSize() const override;

  private:
    void Paint();
};

}  // namespace lv
