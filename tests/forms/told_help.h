// tests/forms/told_help.h
//
// Notes which controls What's This is asked of.

#pragma once

#include <wx/cshelp.h>

#include <string>
#include <vector>

#include "tests/forms/form_driver.h"

namespace lv {

class ToldHelp : public wxHelpProvider {
  public:
    ToldHelp() : before_(wxHelpProvider::Set(this)) {}
    ~ToldHelp() override { wxHelpProvider::Set(before_); }
    ToldHelp(const ToldHelp&) = delete;
    ToldHelp& operator=(const ToldHelp&) = delete;

    wxString GetHelp(const wxWindowBase*) override { return {}; }
    bool ShowHelpAtPoint(wxWindowBase* window, const wxPoint&, wxHelpEvent::Origin) override {
        Names.push_back(window->GetName().utf8_string());
        return true;
    }

    std::vector<std::string> Names;

  private:
    wxHelpProvider* before_;
};

/// What tells when each of them is clicked on with the right button.
inline std::vector<std::string> ToldByRightClicks(const std::vector<std::string>& controls) {
    ToldHelp told;
    for (const std::string& name : controls) {
        RightClickOn(Find(name));
    }
    return told.Names;
}

}  // namespace lv
