// bench/empty_window.cpp
//
// The least that a program of this toolkit can show: a window with nothing in it. A start is measured against it.

#include <wx/app.h>
#include <wx/frame.h>

namespace {

class EmptyApp : public wxApp {
  public:
    bool OnInit() override {
        auto* window = new wxFrame(nullptr, wxID_ANY, "Empty", wxDefaultPosition, wxSize(600, 500));
        window->CentreOnScreen();
        window->Show();
        return true;
    }
};

}  // namespace

wxIMPLEMENT_APP(EmptyApp);
