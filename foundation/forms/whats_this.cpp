#include "foundation/forms/whats_this.h"

#include <wx/cshelp.h>
#include <wx/textctrl.h>

#include <map>
#include <string>

#include "assets/embedded_texts.h"
#include "platform/toolkit/right_click.h"

namespace lv {

namespace {

constexpr long kOwnRightButton = 0x40000000;  // among the extra styles, where the toolkit has none

// One line a control: its name, a tab, the text. UTF-8.
const std::map<std::string, std::string>& Texts() {
    static const std::map<std::string, std::string> texts = [] {
        std::map<std::string, std::string> read;
        const std::string_view all = EmbeddedWhatsThis();
        for (std::size_t at = 0; at < all.size();) {
            const std::size_t end = std::min(all.find('\n', at), all.size());
            const std::string_view line = all.substr(at, end - at);
            const std::size_t tab = line.find('\t');
            if (tab != std::string_view::npos) {
                read.emplace(line.substr(0, tab), line.substr(tab + 1));
            }
            at = end + 1;
        }
        return read;
    }();
    return texts;
}

/// What is said of the control itself, or of all that it is one of: "Bound_Lbl(101)", then "Bound_Lbl(n)". Of a list
/// that belongs to a box, "SST_RGAMMA_Cbo", what is said of the box, "SST_RGAMMA_Chk".
auto TextOf(const std::string& name) {
    constexpr std::string_view kList = "_Cbo";
    const auto own = Texts().find(name);
    const std::size_t open = name.find('(');
    if (own == Texts().end() && open != std::string::npos) {
        return Texts().find(name.substr(0, open) + "(n)");
    }
    return own == Texts().end() && name.ends_with(kList)
               ? Texts().find(name.substr(0, name.size() - kList.size()) + "_Chk")
               : own;
}

// The button of a field opens the menu that cuts and pastes.
bool HasOwnRightButton(const wxWindow* window) {
    return (window->GetExtraStyle() & kOwnRightButton) != 0 || dynamic_cast<const wxTextCtrl*>(window) != nullptr;
}

}  // namespace

void UsesRightButton(wxWindow* window) {
    window->SetExtraStyle(window->GetExtraStyle() | kOwnRightButton);
}

void GiveWhatsThis(wxWindow* window) {
    const auto found = TextOf(window->GetName().utf8_string());
    if (found != Texts().end()) {
        window->SetHelpText(wxString::FromUTF8(found->second));
    }
    if (found != Texts().end() && !HasOwnRightButton(window)) {
        const auto tell = [window] {
            wxHelpProvider::Get()->ShowHelpAtPoint(window, wxGetMousePosition(), wxHelpEvent::Origin_Keyboard);
        };
        if (!WatchRightClick(window->GetHandle(), tell)) {
            window->Bind(wxEVT_RIGHT_UP, [tell](wxMouseEvent&) { tell(); });
        }
    }
    for (wxWindow* child : window->GetChildren()) {
        GiveWhatsThis(child);
    }
}

void EnterWhatsThisMode(wxWindow* window) {
    const wxContextHelp mode(window);
}

}  // namespace lv
