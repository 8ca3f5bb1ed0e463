#include "foundation/forms/wrapped_label.h"

#include <wx/dcclient.h>
#include <wx/textwrapper.h>

#include <vector>

namespace lv {

namespace {

class Lines : public wxTextWrapper {
  public:
    Lines(wxWindow* window, const wxString& text, int width) { Wrap(window, text, width); }

    std::vector<wxString> Texts{wxString()};

  protected:
    void OnOutputLine(const wxString& line) override { Texts.back() += line; }
    void OnNewLine() override { Texts.emplace_back(); }
};

}  // namespace

WrappedLabel::WrappedLabel(wxWindow* parent, int lines)
    : wxStaticText(parent, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxST_NO_AUTORESIZE), lines_(lines) {
    SetMinSize(wxSize(-1, GetTextExtent("X").y * lines));
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        Break();
        event.Skip();
    });
}

void WrappedLabel::SetLabel(const wxString& label) {
    text_ = label;
    Break();
}

void WrappedLabel::Break() {
    const int width = GetClientSize().x;
    std::vector<wxString> lines = Lines(this, text_, width).Texts;
    wxString shown;
    for (std::size_t i = 0; i < lines.size() && static_cast<int>(i) < lines_; ++i) {
        const bool isLast = static_cast<int>(i) == lines_ - 1;
        for (std::size_t more = i + 1; isLast && more < lines.size(); ++more) {
            lines[i] += " " + lines[more];
        }
        wxClientDC dc(this);
        dc.SetFont(GetFont());
        shown += (i == 0 ? "" : "\n") + wxControl::Ellipsize(lines[i], dc, wxELLIPSIZE_END, width);
    }
    wxStaticText::SetLabel(shown);
    SetToolTip(static_cast<int>(lines.size()) > lines_ ? text_ : wxString());
}

}  // namespace lv
