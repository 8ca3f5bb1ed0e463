#include "foundry/editor/find_text.h"

#include <optional>
#include <utility>
#include <vector>

#include "foundation/field_strings.h"
#include "foundry/editor/bindings_page.h"
#include "foundry/editor/found_parts.h"
#include "foundry/editor/settings_pages.h"

namespace lv {

namespace {

/// Brings the part's page to the front.
void Show(Fig_Frm& form, const FoundPart& part) {
    if (form.Main_Tab.Tab != static_cast<int>(part.Page)) {
        Main_Tab_Click(form, static_cast<int>(part.Page));
    }
    if (part.SubPage && part.Page == EditorPage::Player) {
        Options_Tab_Click(form, *part.SubPage);
    } else if (part.SubPage) {
        Bindings_Tab_Click(form, *part.SubPage);
    }
    if (part.Key) {
        const bool joy = *part.Key >= kFirstJoyLabel && *part.Key < kKeyCount;
        if (joy != form.JoyChosen) {
            JoyToggle_Cmd_Click(form, joy ? 0 : 1);
        }
    }
    if (part.Alias && *part.Alias < form.Alias_Lst.Items.size()) {
        form.Alias_Lst.ListIndex = static_cast<int>(*part.Alias);
    }
}

/// Looks for the text of the box, and shows what `choose` picks of the places found. Nothing if there is none.
template <class Choose>
std::optional<FoundPart> Find(Fig_Frm& form, Choose choose) {
    const Text wanted = Trim(form.Find_Txt.Text);
    form.Find_Lbl.Caption.clear();
    if (wanted.empty()) {
        return std::nullopt;
    }
    std::vector<FoundPart> found = FindParts(form, wanted);
    if (found.empty()) {
        form.Find_Lbl.Caption = "Nothing found.";
        return std::nullopt;
    }
    form.FoundPlace = choose() % found.size();
    FoundPart& part = found[form.FoundPlace];
    form.Find_Lbl.Caption =
        Join(std::to_string(form.FoundPlace + 1), " of ", std::to_string(found.size()), ": ", part.Caption);
    Show(form, part);
    return std::move(part);
}

}  // namespace

void Find_Txt_Change(Fig_Frm& form) {
    form.FoundTaken = false;
    Find(form, [] { return std::size_t{0}; });
}

void FindNext_Cmd_Click(Fig_Frm& form) {
    const auto found = Find(form, [&] { return form.FoundPlace + (form.FoundTaken ? 1U : 0U); });
    form.FoundTaken = found.has_value();
    if (found) {
        form.FoundControl = found->Control;
    }
}

}  // namespace lv
