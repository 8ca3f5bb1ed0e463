#include "foundation/forms/wx_user.h"

#include <wx/app.h>
#include <wx/dcmemory.h>
#include <wx/dialog.h>
#include <wx/display.h>
#include <wx/evtloop.h>
#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/scopeguard.h>
#include <wx/settings.h>
#include <wx/stopwatch.h>
#include <wx/taskbar.h>
#include <wx/textctrl.h>
#include <wx/textdlg.h>
#include <wx/toplevel.h>
#include <wx/utils.h>

#include <cmath>

#include "foundation/forms/about_form.h"
#include "foundation/forms/modal_form.h"
#include "foundation/forms/question_box_form.h"
#include "foundation/forms/whats_this.h"
#include "foundation/forms/wx_text.h"
#include "platform/toolkit/spoken_name.h"
#include "platform/toolkit/warm_up.h"
#include "platform/web_browser.h"

namespace lv {

namespace {

constexpr std::size_t kMostWidths = 4000;
constexpr std::size_t kMostKept = 200;  // letters of a line
constexpr std::size_t kTabStop = 8;     // letters

constexpr long kLongestPump = 100;   // milliseconds
constexpr long kLongestWait = 1000;  // milliseconds; another program may keep the keyboard
constexpr unsigned long kBetweenLooks = 5;

constexpr int kLongInDip = 1000;
constexpr double kSameScale = 0.01;

// Of the toolkit's pixels: 1 where it scales everything by itself, as GTK does. Without a window, that of the first
// screen.
double ScaleOf(const wxWindow* window) {
    return static_cast<double>(wxWindow::FromDIP(kLongInDip, window)) / kLongInDip;
}

/// Below it the others are disabled: raised themselves they would only take the keyboard from it.
wxTopLevelWindow* DialogOnTop() {
    wxTopLevelWindow* top = nullptr;
    for (wxWindow* window : wxTopLevelWindows) {
        auto* const dialog = dynamic_cast<wxDialog*>(window);
        if (dialog != nullptr && dialog->IsModal() && dialog->IsShown()) {
            top = dialog;
        }
    }
    return top;
}

}  // namespace

/// One measure for all windows of one scale, on a bitmap of no size that matters. Kept, for making one costs more than
/// a thousand measurements.
struct WxUser::Ruler {
    Ruler(const wxFont& font, double scale) : Bitmap(BitmapOf(scale)), Canvas(Bitmap) { Canvas.SetFont(font); }

    // A font is as large on it as its scale says.
    static wxBitmap BitmapOf(double scale) {
        wxBitmap bitmap;
        bitmap.CreateWithDIPSize(wxSize(1, 1), scale);
        return bitmap;
    }

    wxBitmap Bitmap;
    wxMemoryDC Canvas;
};

WxUser::WxUser(Files& files) : files_(files) {}

void WxUser::FitRulers() {
    const double scale = ScaleOf(Owner());
    if (!ruler_ || std::abs(scale - rulerScale_) > kSameScale) {
        rulerScale_ = scale;
        widths_.clear();
        ruler_ = std::make_unique<Ruler>(wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT), scale);
        fixedRuler_ = nullptr;
    }
}

WxUser::Ruler& WxUser::TheRuler() {
    FitRulers();
    return *ruler_;
}

WxUser::Ruler& WxUser::TheFixedRuler() {
    FitRulers();
    if (!fixedRuler_) {
        fixedRuler_ = std::make_unique<Ruler>(FixedWidthFont(), rulerScale_);
    }
    return *fixedRuler_;
}

WxUser::~WxUser() = default;

wxWindow* WxUser::Owner() const {
    if (onTop_ != nullptr) {
        return onTop_;
    }
    wxWindow* const form = foremost_ != nullptr ? foremost_ : activeForm_;
    return form != nullptr && form->IsShownOnScreen() ? form : nullptr;
}

std::unique_ptr<wxDialog> WxUser::FormOf(ModalWindow& window) {
    if (prepared_ && preparedOf_ == &window) {
        return std::move(prepared_);
    }
    for (const FormMaker& maker : makers_) {
        if (std::unique_ptr<wxDialog> form = maker(Owner(), window)) {
            return form;
        }
    }
    return nullptr;
}

void WxUser::ShowModal(ModalWindow& window) {
    Refresh();
    if (const std::unique_ptr<wxDialog> form = FormOf(window)) {
        wxON_BLOCK_EXIT_SET(onTop_, onTop_);
        onTop_ = form.get();
        form->ShowModal();
    }
    Refresh();
}

void WxUser::Prepare(ModalWindow& window) {
    DropPrepared();
    prepared_ = FormOf(window);
    preparedOf_ = &window;
}

void WxUser::DropPrepared() {
    prepared_.reset();
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
    const wxString usual = request.ForSaving ? "Save As" : "Open";
    wxFileDialog dialog(Owner(), request.Title.empty() ? usual : ToWx(request.Title), wxString::FromUTF8(directory),
                        ToWx(request.FileName), ToWx(request.Filter), style);
    if (request.FilterIndex > 0) {
        dialog.SetFilterIndex(request.FilterIndex);
    }
    if (dialog.ShowModal() != wxID_OK) {
        return std::optional<Text>();
    }
    const std::string chosen = dialog.GetPath().utf8_string();
    const Text path = files_.FromHost(chosen);
    return path.empty() ? Result<std::optional<Text>>(files_.WhyNotFromHost(chosen)) : std::optional<Text>(path);
}

void WxUser::OnRefresh(const void* owner, std::function<void()> show) {
    std::erase_if(refresh_, [owner](const auto& entry) { return entry.first == owner; });
    if (show) {
        refresh_.emplace_back(owner, std::move(show));
    }
}

void WxUser::Refresh() {
    // By index: a window may come up, or go, while another shows itself.
    for (std::size_t i = 0; i < refresh_.size(); ++i) {
        const auto show = refresh_[i].second;
        show();
    }
    if (auto* dialog = dynamic_cast<ModalForm*>(onTop_)) {
        dialog->ShowState();
    }
}

// Not the toolkit's own way, which ends only when nothing is left: on a busy machine the work of a timer takes longer
// than the timer, and there is always something.
void WxUser::PumpEvents() {
    wxEventLoopBase* const loop = wxEventLoopBase::GetActive();
    const wxStopWatch pumped;
    while (loop != nullptr && loop->Pending() && pumped.Time() < kLongestPump) {
        loop->Dispatch();  // a loop that is to end knows of that by itself
    }
    if (loop != nullptr) {
        loop->ProcessIdle();
    }
    if (wxTheApp != nullptr) {
        wxTheApp->ProcessPendingEvents();
    }
}

void WxUser::EndProgram() {
    if (wxTheApp != nullptr) {
        wxTheApp->ExitMainLoop();
    }
}

int WxUser::TextWidth(TextView line) {
    FitRulers();
    Text text(line);
    if (const auto known = widths_.find(text); known != widths_.end()) {
        return known->second;
    }
    const int width = TheRuler().Canvas.GetTextExtent(ToWx(line)).GetWidth();
    if (text.size() <= kMostKept) {
        if (widths_.size() >= kMostWidths) {
            widths_.clear();
        }
        widths_.emplace(std::move(text), width);
    }
    return width;
}

int WxUser::TextHeight() {
    return TheRuler().Canvas.GetTextExtent("Wg").GetHeight();
}

int WxUser::FixedTextWidth(TextView line) {
    Text text;
    for (const char sign : line) {
        text.append(sign == '\t' ? kTabStop - text.size() % kTabStop : 1, sign == '\t' ? ' ' : sign);
    }
    return TheFixedRuler().Canvas.GetTextExtent(ToWx(text)).GetWidth();
}

int WxUser::FixedTextHeight() {
    return TheFixedRuler().Canvas.GetTextExtent("Wg").GetHeight();
}

ScreenSize WxUser::Screen() {
    const wxSize size = wxDisplay(static_cast<unsigned>(0)).GetClientArea().GetSize();
    return {size.GetWidth(), size.GetHeight()};
}

void WxUser::ShowAbout(About_Frm& about) {
    ShowAboutForm(Owner(), about);
}

std::optional<Text> WxUser::InputBox(TextView title, TextView prompt, TextView offered) {
    wxTextEntryDialog dialog(Owner(), ToWx(prompt), ToWx(title), ToWx(offered));
    dialog.SetName("InputBox");
    for (wxWindow* child : dialog.GetChildren()) {
        if (auto* field = dynamic_cast<wxTextCtrl*>(child)) {
            SetSpokenName(field->GetHandle(), ToUtf8(prompt));
            // What is typed takes the place of what is offered; Windows puts the cursor in front of it.
            dialog.CallAfter([field] { field->SelectAll(); });
        }
    }
    if (dialog.ShowModal() != wxID_OK) {
        return std::nullopt;
    }
    return FromWx(dialog.GetValue());
}

Error WxUser::OpenHelp(TextView path, const HelpPlace& place) {
    return handbook_.Open(wxFileName(wxString::FromUTF8(files_.ToHost(path))), place);
}

void WxUser::OnHelpKey(std::function<void()> open) {
    helpKey_ = std::make_unique<HelpKey>(std::move(open));
}

Error WxUser::OpenUrl(TextView address) {
    return OpenInBrowser(Text(address));
}

bool WxUser::TrayAvailable() {
    return wxTaskBarIcon::IsAvailable();
}

void WxUser::PrepareMainWindow() {
    if (activeForm_ != nullptr) {
        WarmUp(activeForm_->GetHandle());
    }
}

void WxUser::AwaitMainWindow() {
    auto* window = dynamic_cast<wxTopLevelWindow*>(activeForm_);
    const wxStopWatch waited;
    while (window != nullptr && !window->IsActive() && waited.Time() < kLongestWait) {
        PumpEvents();
        wxMilliSleep(kBetweenLooks);
    }
}

void WxUser::RaiseMainWindow() {
    if (auto* window = dynamic_cast<wxTopLevelWindow*>(activeForm_)) {
        window->Iconize(false);
        window->Show();
        wxTopLevelWindow* const dialog = DialogOnTop();
        (dialog != nullptr ? dialog : window)->Raise();
    }
}

void WxUser::PopUpMenu(TextView menu) {
    if (popUp_) {
        popUp_(menu);
    }
}

void WxUser::EnterWhatsThis() {
    if (activeForm_ == nullptr) {
        return;
    }
    if (helpKey_) {
        helpKey_->WhatsThisMode = true;
    }
    EnterWhatsThisMode(activeForm_);
    if (helpKey_) {
        helpKey_->WhatsThisMode = false;
    }
}

}  // namespace lv
