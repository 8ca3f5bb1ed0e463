// tests/forms/main.cpp
//
// Runs the tests of real windows inside the toolkit's event loop.

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/cshelp.h>
#include <wx/image.h>

#include "foundation/forms/help_bubble.h"
#include "tests/forms/complaints.h"
#include "tests/forms/left_windows.h"
#include "tests/forms/patience.h"
#include "tests/forms/window_manners.h"

namespace {

// The toolkit's own complaints are failures, not dialogs that wait for a hand.
void FailTheTest(const wxString& file, int line, const wxString&, const wxString& condition, const wxString& message) {
    ADD_FAILURE() << file << ":" << line << ": " << condition << " " << message;
}

class TestApp : public wxApp {
  public:
    bool OnInit() override {
        wxImage::AddHandler(new wxPNGHandler);
        wxHelpProvider::Set(new lv::HelpBubbles);
        wxSetAssertHandler(FailTheTest);
        SetExitOnFrameDelete(false);
        CallAfter([this] {
            // Within the toolkit's life, for it has a timer.
            lv::Patience patience;
            lv::LeftWindows left;
            lv::WatchManners();
            lv::FailAtComplaints();
            auto& listeners = ::testing::UnitTest::GetInstance()->listeners();
            listeners.Append(&patience);
            listeners.Append(&left);
            result_ = RUN_ALL_TESTS();
            listeners.Release(&left);
            listeners.Release(&patience);
            ExitMainLoop();
        });
        return true;
    }
    int OnRun() override {
        wxApp::OnRun();
        return result_;
    }

  private:
    int result_ = 1;
};

}  // namespace

wxIMPLEMENT_APP_NO_MAIN(TestApp);

int main(int count, char** arguments) {
    ::testing::InitGoogleTest(&count, arguments);
    return wxEntry(count, arguments);
}
