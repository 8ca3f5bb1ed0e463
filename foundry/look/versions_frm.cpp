#include "foundry/look/versions_frm.h"

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
    Versions = VersionsOf(owner, script);
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
    if (const Error failed = BringBack(form.run, form.Script, form.Versions[row])) {
        AskUser(form.run, kTitle,
                Join("The version could not be brought back, and the script is as it was.", NewLine, NewLine,
                     ErrorLines(failed)));
        return;
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
        AskUser(run, kTitle,
                Join("There is no older version of this script yet.", NewLine,
                     "Each save in Setup Foundry keeps what it replaces."));
        return false;
    }
    ShowModal(form);
    return form.BroughtBack;
}

}  // namespace lv
