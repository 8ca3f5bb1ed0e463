#include "foundry/editor/found_parts.h"

#include <algorithm>
#include <span>
#include <utility>

#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "foundry/editor/key_picture.h"
#include "foundry/editor/settings_pages.h"
#include "foundry/editor/slot_pages.h"

namespace lv {

namespace {

Text Member(TextView array, Index index) {
    return Join(array, "(", std::to_string(index), ")");
}

/// The caption as it is seen: "&&" is one "&", a single one marks a letter.
Text WithoutMnemonic(TextView caption) {
    Text seen;
    for (std::size_t at = 0; at < caption.size(); ++at) {
        const bool marks = caption[at] == '&' && at + 1 < caption.size() && caption[at + 1] != ' ';
        at += marks ? 1U : 0U;
        seen += caption[at];
    }
    return seen;
}

class Finder {
  public:
    Finder(const Fig_Frm& form, TextView wanted) : form_(form), document_(form.Document), wanted_(LowerCase(wanted)) {}

    std::vector<FoundPart> All() {
        FindSettings();
        for (int page = 0; page < static_cast<int>(form_.Bindings_Tab.Pages.size()); ++page) {
            if (form_.Bindings_Tab.Pages[static_cast<std::size_t>(page)].Visible) {
                FindBindings(static_cast<BindingsPage>(page));
            }
        }
        FindRows({EditorPage::Aliases, {}});
        FindKeys();
        FindAliases();
        return std::move(found_);
    }

  private:
    [[nodiscard]] bool In(TextView text) const {
        const auto same = [](char c, char wanted) { return LowerCase(c) == wanted; };
        return !wanted_.empty() &&
               std::search(text.begin(), text.end(), wanted_.begin(), wanted_.end(), same) != text.end();
    }

    void FindSettings() {
        for (int page = 0; page < static_cast<int>(document_.Options_Tab.Pages.size()); ++page) {
            if (!document_.Options_Tab.Pages[static_cast<std::size_t>(page)].Visible) {
                continue;
            }
            const auto options = static_cast<OptionsPage>(page);
            if (GameKind() != Game::Unreal || options == OptionsPage::General) {
                FindRowsOfSettings(options);
            } else {
                FindUnrealLists(options);
            }
        }
    }

    void FindRowsOfSettings(OptionsPage page) {
        for (const SettingRow& row : SettingRows()) {
            if (PageOfGroup(row.Group) == page) {
                AddSetting(document_.*row.List, row.Group, row.Name, row.Caption);
            }
        }
        for (const CheckRow& row : CheckRows()) {
            const CheckBox& box = document_.*row.Box;
            const bool amongSettings = row.Box != &ScriptSettings::Unbindall_Chk;
            if (amongSettings && PageOfGroup(row.Group) == page) {
                AddSetting(box, row.Group, row.Name,
                           WithoutMnemonic(box.Caption.empty() ? row.Caption : TextView(box.Caption)));
            }
        }
    }

    /// They cover the pages that the other games have.
    void FindUnrealLists(OptionsPage page) {
        if (page == PageOfGroup(&Fig_Frm::PlayerPawn_Pic)) {
            AddLists(document_.PlayerPawn_Cbo, &Fig_Frm::PlayerPawn_Pic, "PlayerPawn_Cbo", PlayerPawnCaptions());
            AddLists(document_.MouseBind_Cbo, &Fig_Frm::PlayerPawn_Pic, "MouseBind_Cbo", MouseBindCaptions());
        } else if (page == PageOfGroup(&Fig_Frm::UnrealAudio_Pic)) {
            AddLists(document_.UnrealAudio_Cbo, &Fig_Frm::UnrealAudio_Pic, "UnrealAudio_Cbo", UnrealAudioCaptions());
        }
    }

    void AddLists(std::span<const ListBox> lists, Panel Fig_Frm::*group, TextView name,
                  std::span<const TextView> captions) {
        for (std::size_t i = 0; i < std::min(lists.size(), captions.size()); ++i) {
            AddSetting(lists[i], group, Member(name, static_cast<Index>(i)), captions[i]);
        }
    }

    void AddSetting(const Control& control, Panel Fig_Frm::*group, TextView name, TextView caption) {
        if (control.Visible && (form_.*group).Visible && In(caption)) {
            found_.push_back({.Page = EditorPage::Player,
                              .SubPage = static_cast<int>(PageOfGroup(group)),
                              .Control = Text(name),
                              .Caption = Trim(caption)});
        }
    }

    void FindBindings(BindingsPage page) {
        FindRows({EditorPage::Bindings, page});
        if (page == BindingsPage::System) {
            FindUnbindAll();
        }
    }

    void FindUnbindAll() {
        const CheckBox& box = document_.Unbindall_Chk;
        const Text caption = WithoutMnemonic(box.Caption);
        if (box.Visible && In(caption)) {
            found_.push_back({.Page = EditorPage::Bindings,
                              .SubPage = static_cast<int>(BindingsPage::System),
                              .Control = "Unbindall_Chk",
                              .Caption = caption});
        }
    }

    void FindRows(SlotPage page) {
        for (const SlotNumber slot : SlotNumbers()) {
            const SlotPage place = PageOfSlot(slot);
            if (place.Page == page.Page && place.Bindings == page.Bindings && IsShown(slot) && RowHasIt(slot)) {
                found_.push_back({.Page = page.Page,
                                  .SubPage = page.Page == EditorPage::Bindings
                                                 ? std::optional<int>(static_cast<int>(page.Bindings))
                                                 : std::nullopt,
                                  .Control = Member("Setting_Lbl", slot),
                                  .Caption = Trim(document_.Bound_Lbl[slot].Caption)});
            }
        }
    }

    /// A row that is not filled is none.
    [[nodiscard]] bool IsShown(SlotNumber slot) const {
        const Label& name = document_.Bound_Lbl[slot];
        return name.Visible && document_.Setting_Lbl[slot].Visible && !TrimmedView(name.Caption).empty();
    }

    [[nodiscard]] bool RowHasIt(SlotNumber slot) const {
        const Label& name = document_.Bound_Lbl[slot];
        const Text& keys = document_.Setting_Lbl[slot].Caption;
        if (In(name.Caption) || In(name.ToolTip) || In(document_.SlotCommand[slot]) || In(keys)) {
            return true;
        }
        for (Index key = 0; key <= CountDelimiters(keys, ":"); ++key) {
            const KeyIndex index = KeyIndexOfCaption(document_.KeyCaption, Trim(GetField(keys, key, ":")));
            if (In(PlainName(index)) || (index != kNoKey && In(SpokenName(index)))) {
                return true;
            }
        }
        return false;
    }

    [[nodiscard]] TextView PlainName(KeyIndex key) const {
        return KeyName(key, StyleOfFamily(document_.Dialect.ScriptFamily)).Name;
    }

    void FindKeys() {
        for (Index label = 0; label <= kLastKeyLabel; ++label) {
            const KeyLabel& shown = form_.Key_Lbl[static_cast<std::size_t>(label)];
            if (shown.Exists && shown.Visible &&
                (In(shown.Caption) || In(SpokenName(label)) || KeyHasIt(KeyOfLabel(label, GameKind())))) {
                found_.push_back({.Page = EditorPage::Bindings,
                                  .Control = Member("Key_Lbl", label),
                                  .Caption = Join("Key ", shown.Caption),
                                  .Key = label});
            }
        }
    }

    [[nodiscard]] bool KeyHasIt(KeyIndex key) const {
        if (key < 0 || key >= kKeyCount) {
            return false;
        }
        const auto index = static_cast<std::size_t>(key);
        return In(PlainName(key)) || In(document_.KeyCaption[index]) || In(document_.KeyBinding[index]);
    }

    void FindAliases() {
        for (std::size_t place = 0; place < document_.AliasTable.AliasCount(); ++place) {
            const Alias& alias = document_.AliasTable[place];
            if (In(alias.Name) || In(alias.Body)) {
                found_.push_back({.Page = EditorPage::Aliases,
                                  .Control = "Alias_Lst",
                                  .Caption = Join("Alias ", alias.Name),
                                  .Alias = place});
            }
        }
    }

    [[nodiscard]] Game GameKind() const { return document_.Dialect.GameKind; }

    const Fig_Frm& form_;
    const ScriptDocument& document_;
    Text wanted_;
    std::vector<FoundPart> found_;
};

}  // namespace

std::vector<FoundPart> FindParts(const Fig_Frm& form, TextView text) {
    return Finder(form, text).All();
}

}  // namespace lv
