#include "foundation/forms/wx_user.h"

#include <wx/app.h>
#include <wx/dcmemory.h>
#include <wx/display.h>
#include <wx/evtloop.h>
#include <wx/filedlg.h>
#include <wx/settings.h>
#include <wx/utils.h>

#include "foundation/forms/question_box_form.h"
#include "foundation/forms/wx_text.h"

namespace lv {

namespace {

// One measure for all windows: the toolkit's own font, on a bitmap of no size that matters.
wxSize Measure(const wxString& line) {
    wxBitmap bitmap(1, 1);
    wxMemoryDC canvas(bitmap);
    canvas.SetFont(wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT));
    return canvas.GetTextExtent(line);
}

}  // namespace

wxWindow* WxUser::Owner() const {
    return activeForm_ != nullptr && activeForm_->IsShownOnScreen() ? activeForm_ : nullptr;
}

void WxUser::ShowQuestionBox(QuestionBox_Frm& box) {
    Refresh();
    QuestionBoxForm form(Owner(), box);
    form.ShowModal();
}

Result<std::optional<Text>> WxUser::ChooseFile(const FileRequest& request) {
    Refresh();
    const long style = request.ForSaving ? wxFD_SAVE | wxFD_OVERWRITE_PROMPT : wxFD_OPEN | wxFD_FILE_MUST_EXIST;
    const std::string directory = files_.ToHost(request.InitialDirectory);
    wxFileDialog dialog(Owner(), request.Title.empty() ? wxString("Open") : ToWx(request.Title),
                        wxString::FromUTF8(directory), ToWx(request.FileName), ToWx(request.Filter), style);
    if (dialog.ShowModal() != wxID_OK) {
        return std::optional<Text>();
    }
    const Text path = files_.FromHost(dialog.GetPath().utf8_string());
    if (path.empty()) {
        return MakeError(error::kPathNotFound, "this file lies on none of the drives");
    }
    return std::optional<Text>(path);
}

void WxUser::Refresh() {
    if (refresh_) {
        refresh_();
    }
}

void WxUser::PumpEvents() {
    if (wxEventLoopBase* loop = wxEventLoopBase::GetActive()) {
        loop->YieldFor(wxEVT_CATEGORY_ALL);
    } else if (wxTheApp != nullptr) {
        wxTheApp->ProcessPendingEvents();
    }
}

void WxUser::EndProgram() {
    if (wxTheApp != nullptr) {
        wxTheApp->ExitMainLoop();
    }
}

int WxUser::TextWidth(TextView line) {
    return Measure(ToWx(line)).GetWidth();
}

int WxUser::TextHeight() {
    return Measure("Wg").GetHeight();
}

ScreenSize WxUser::Screen() {
    const wxSize size = wxDisplay(static_cast<unsigned>(0)).GetClientArea().GetSize();
    return {size.GetWidth(), size.GetHeight()};
}

}  // namespace lv
