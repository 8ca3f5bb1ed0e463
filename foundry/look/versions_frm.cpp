#include "foundry/look/versions_frm.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "foundation/error_lines.h"
#include "foundation/field_strings.h"
#include "foundation/number_format.h"
#include "foundation/question_box.h"

namespace lv {

namespace {

constexpr const char* kTitle = "Setup Foundry";

/// "11/23/2026 08:52:11   5,120 bytes"
Text RowText(const ScriptVersion& version) {
    const LocalTime& date = version.Date;
    std::array<char, 80> room{};
    std::snprintf(room.data(), room.size(), "%02d/%02d/%04d %02d:%02d:%02d", date.Month, date.Day, date.Year, date.Hour,
                  date.Minute, date.Second);
    return Join(room.data(), "   ", std::to_string(version.Text.size()), " bytes");
}

/// "4 versions", "at least 1 version"
Text LostText(const VersionFile& file) {
    const std::size_t lost = std::max(file.Lost, std::size_t{file.IsLostExact ? 0U : 1U});
    return Join(file.IsLostExact ? "" : "at least ", std::to_string(lost), lost == 1 ? " version" : " versions");
}

/// What is damaged or cannot be read, and where what was damaged lies; empty if nothing ever was.
Text DamageText(const VersionFile& file, const std::vector<Text>& aside) {
    Text text;
    if (file.Unread) {
        text = Join("The file that keeps the versions cannot be read:", NewLine, NewLine, ErrorLines(file.Unread),
                    NewLine);
    } else if (file.IsDamaged) {
        text = Join("The file that keeps the versions is damaged. What could not be read of it: ", LostText(file), ".",
                    NewLine, "The next save puts the damaged file aside, and what could be read goes on.");
    }
    if (!aside.empty()) {
        text += Join(text.empty() ? "" : NewLine, "A damaged file of versions was kept as ", aside.back());
    }
    return text;
}

Text ChangesText(std::size_t changes) {
    if (changes == 0) {
        return "It is what the script holds now.";
    }
    return Join("Bringing it back changes ", std::to_string(changes), changes == 1 ? " line." : " lines.");
}

}  // namespace

Versions_Frm::Versions_Frm(Run& owner, TextView script) : ModalWindow(owner, "Versions_Frm"), Script(script) {
    Caption = Join("Versions of ", LastPathPart(script));
    Versions_Lbl.Caption = "Each save kept what it replaced:";
    Difference_Lst.LeftTitle = "Now";
    Difference_Lst.RightTitle = "This Version";
    BringBack_Cmd.Caption = "&Bring It Back";
    BringBack_Cmd.ToolTip = "Put this version in the place of the script. What that holds now becomes a version itself";
    NextChange_Cmd.Caption = "&Next Change";
    NextChange_Cmd.ToolTip = "Go on to the next lines that differ";
    Close_Cmd.Caption = "&Close";
    OnDisk = owner.System.Disk.Read(script).Value;
    VersionFile file = ReadVersions(owner, script);
    Damage_Lbl.Caption = DamageText(file, DamagedVersionFiles(owner, script));
    Damage_Lbl.Visible = !Damage_Lbl.Caption.empty();
    KeepsVersions = !file.Unread;
    Versions = std::move(file.Versions);
    for (const ScriptVersion& version : Versions) {
        Versions_Lst.Items.push_back(RowText(version));
    }
    Versions_Lst.ListIndex = Versions.empty() ? -1 : 0;
    Focus = "Versions_Lst";
    Versions_Lst_Click(*this);
}

void Versions_Lst_Click(Versions_Frm& form) {
    form.BringBack_Cmd.Enabled = form.Versions_Lst.HasSelection();
    if (form.Versions_Lst.HasSelection()) {
        const ScriptVersion& version = form.Versions[static_cast<std::size_t>(form.Versions_Lst.ListIndex)];
        form.Difference_Lst.Compare(form.OnDisk, version.Text);
        form.Difference_Lbl.Caption = ChangesText(form.Difference_Lst.Changes());
    }
    form.NextChange_Cmd.Enabled = form.Difference_Lst.Changes() > 0;
}

void Versions_NextChange_Cmd_Click(Versions_Frm& form) {
    SelectNextChange(form.Difference_Lst);
}

void Versions_BringBack_Cmd_Click(Versions_Frm& form) {
    if (!form.Versions_Lst.HasSelection()) {
        return;
    }
    const auto row = static_cast<std::size_t>(form.Versions_Lst.ListIndex);
    const Result<Text> kept = BringBack(form.run, form.Script, form.Versions[row]);
    if (!kept.Ok()) {
        AskUser(form.run, kTitle,
                Join("The version could not be brought back, and the script is as it was.", NewLine, NewLine,
                     ErrorLines(kept.Fault)));
        return;
    }
    if (!kept.Value.empty()) {
        AskUser(form.run, kTitle, KeptAsideText(kept.Value));
    }
    form.BroughtBack = true;
    form.Closed = true;
}

void Versions_Close_Cmd_Click(Versions_Frm& form) {
    form.Closed = true;
}

bool ShowVersions(Run& run, TextView script) {
    Versions_Frm form(run, script);
    if (form.Versions.empty()) {
        const Text none = form.Damage_Lbl.Caption.empty() ? "There is no older version of this script yet."
                                                          : "No older version of this script can be shown.";
        const Text damage = form.Damage_Lbl.Caption.empty() ? Text() : Join(NewLine, form.Damage_Lbl.Caption, NewLine);
        AskUser(run, kTitle,
                Join(none, NewLine, damage,
                     form.KeepsVersions ? "Each save in Setup Foundry keeps what it replaces."
                                        : "Until it can be read, no save keeps what it replaces."));
        return false;
    }
    ShowModal(form);
    return form.BroughtBack;
}

}  // namespace lv
