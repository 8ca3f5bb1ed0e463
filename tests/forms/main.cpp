// tests/forms/main.cpp
//
// Runs the tests of real windows inside the toolkit's event loop.

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/image.h>

namespace {

class TestApp : public wxApp {
  public:
    bool OnInit() override {
        wxImage::AddHandler(new wxPNGHandler);
        SetExitOnFrameDelete(false);
        CallAfter([this] {
            result_ = RUN_ALL_TESTS();
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
