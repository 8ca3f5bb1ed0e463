#include "tests/forms/window_manners.h"

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/frame.h>
#include <wx/menu.h>
#include <wx/modalhook.h>

#include <algorithm>
#include <cctype>
#include <functional>
#include <map>
#include <vector>

#include "foundry/forms/cell_label.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

void EachInSight(const wxWindow& window, const std::function<void(wxWindow&)>& see) {
    for (wxWindow* child : window.GetChildren()) {
        if (child->IsShown() && !child->IsTopLevel()) {
            see(*child);
            EachInSight(*child, see);
        }
    }
}

char AccessKeyIn(const wxString& label) {
    const std::string text = label.utf8_string();
    for (std::size_t at = text.find('&'); at != std::string::npos && at + 1 < text.size();
         at = text.find('&', at + 2)) {
        if (text[at + 1] != '&') {
            return static_cast<char>(std::tolower(static_cast<unsigned char>(text[at + 1])));
        }
    }
    return 0;
}

// A cell says what it shows when the keyboard comes to it.
bool NeedsAName(const wxWindow& control) {
    return dynamic_cast<const CellLabel*>(&control) == nullptr && control.AcceptsFocus() &&
           control.GetChildren().empty() && control.GetLabel().empty();
}

class MannersHook : public wxModalDialogHook {
  protected:
    int Enter(wxDialog* dialog) override {
        EXPECT_EQ(SharedAccessKeys(*dialog), "") << dialog->GetTitle();
        // What a control says it may say only when it is shown.
        dialog->CallAfter([dialog] { EXPECT_EQ(NamelessControls(*dialog), "") << dialog->GetTitle(); });
        return wxID_NONE;
    }
};

}  // namespace

bool SystemKeepsNames(wxWindow& control) {
    static const bool keeps = [&control] {
        const std::string before = SpokenName(control.GetHandle());
        SetSpokenName(control.GetHandle(), "a name");
        const bool kept = SpokenName(control.GetHandle()) == "a name";
        SetSpokenName(control.GetHandle(), before);
        return kept;
    }();
    return keeps;
}

std::string SharedAccessKeys(const wxWindow& window) {
    std::map<char, std::vector<wxString>> keys;
    const auto note = [&keys](const wxString& label) {
        if (const char key = AccessKeyIn(label); key != 0) {
            keys[key].push_back(label);
        }
    };
    EachInSight(window, [&note](wxWindow& control) { note(control.GetLabel()); });
    if (const auto* frame = dynamic_cast<const wxFrame*>(&window); frame != nullptr && frame->GetMenuBar() != nullptr) {
        for (std::size_t i = 0; i < frame->GetMenuBar()->GetMenuCount(); ++i) {
            note(frame->GetMenuBar()->GetMenuLabel(i));
        }
    }
    wxString shared;
    for (const auto& [key, labels] : keys) {
        if (labels.size() > 1 &&
            !std::ranges::all_of(labels, [&](const wxString& label) { return label == labels[0]; })) {
            shared += wxString(key) + ":";
            for (const wxString& label : labels) {
                shared += " [" + label + "]";
            }
            shared += "\n";
        }
    }
    return shared.utf8_string();
}

std::string NamelessControls(const wxWindow& window) {
    wxString nameless;
    EachInSight(window, [&nameless](wxWindow& control) {
        if (NeedsAName(control) && SystemKeepsNames(control) && SpokenName(control.GetHandle()).empty()) {
            nameless += control.GetName() + "\n";
        }
    });
    return nameless.utf8_string();
}

void WatchManners() {
    static MannersHook hook;
    hook.Register();
}

}  // namespace lv
