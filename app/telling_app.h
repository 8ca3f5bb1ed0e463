// app/telling_app.h
//
// The program that only tells what has gone wrong, and ends.

#pragma once

#include <wx/app.h>
#include <wx/image.h>

#include <memory>
#include <utility>

#include "foundation/forms/wx_user.h"
#include "foundation/question_box.h"

namespace lv {

class TellingApp : public wxApp {
  public:
    /// Ends with `code`.
    TellingApp(std::unique_ptr<Files> disk, Text told, int code)
        : disk_(std::move(disk)), told_(std::move(told)), code_(code) {}

    bool OnInit() override {
        SetAppName("lorvane3d");
        SetAppDisplayName("Lorvane 3D");
        wxImage::AddHandler(new wxPNGHandler);
        SetExitOnFrameDelete(false);
        return true;
    }

    int OnRun() override {
        WxUser user(*disk_);
        QuestionBox_Frm box = MakeQuestionBox("Lorvane 3D", told_, "&OK", 0, kIcon);
        LayOutQuestionBox(box, user);
        user.ShowQuestionBox(box);
        return code_;
    }

  private:
    static constexpr int kIcon = 4;

    std::unique_ptr<Files> disk_;
    Text told_;
    int code_;
};

}  // namespace lv
