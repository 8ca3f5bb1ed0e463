#include "foundry/look/changes_frm.h"

#include <algorithm>

#include "foundation/field_strings.h"

namespace lv {

namespace {

Text CountText(std::size_t count, TextView one, TextView many) {
    return Join(std::to_string(count), Blank, count == 1 ? one : many);
}

Text KeptText(std::size_t changed, std::size_t kept, bool keeps) {
    if (!keeps) {
        return changed == 1 ? "It cannot be kept:" : "They cannot be kept:";
    }
    if (kept == 0) {
        return "'Keep These' sees to it that the next save changes nothing more:";
    }
    return kept == changed ? Join("'Keep These' saves ", changed == 1 ? "it" : "them", " too:")
                           : Join("'Keep These' saves ", std::to_string(kept), " of them too:");
}

Text VainText(std::size_t vain) {
    return Join(std::to_string(vain), " of your changes ", vain == 1 ? "comes" : "come", " to nothing");
}

Text Heading(const SaveReport& report, const std::vector<SaveLoss>& losses) {
    if (!report.TooLong.empty()) {
        return report.TooLong;
    }
    if (report.IsOfNothing) {
        return "The file says nothing to the game yet. For the game this save adds:";
    }
    std::size_t changed = 0;
    std::size_t vain = 0;
    std::size_t kept = 0;
    for (const SaveLoss& each : losses) {
        changed += each.ByUser || each.IsOverridden ? 0 : 1;
        vain += each.IsOverridden ? 1 : 0;
        kept += each.ByUser || !each.CanKeep ? 0 : 1;
    }
    if (changed > 0) {
        return Join("For the game this save loses or changes ", CountText(changed, "thing", "things"),
                    " that you have not changed yourself", vain > 0 ? Join(", and ", VainText(vain)) : Text(), ". ",
                    KeptText(changed + vain, kept, report.Keeps));
    }
    if (vain > 0) {
        return Join("For the game ", VainText(vain), ". ", KeptText(vain, kept, report.Keeps));
    }
    return losses.empty() ? "For the game this save changes nothing."
                          : "For the game this save changes nothing but what you have changed yourself:";
}

Text LinesText(std::size_t changes) {
    return changes == 0
               ? Text("The file holds these very lines already.")
               : Join(CountText(changes, "line differs", "lines differ"), " between the file and what is saved:");
}

}  // namespace

Text LossText(const SaveLoss& loss) {
    if (loss.ByUser) {
        return Join(loss.Words, " You have changed that.");
    }
    if (loss.IsOverridden) {
        return Join(loss.Words, Blank, loss.Reason,
                    loss.CanKeep ? " 'Keep These' takes it out." : " Change or delete it there.");
    }
    const bool cannotKeep = !loss.CanKeep && !loss.IsOfEmptyField && loss.Difference.Kind != DifferenceKind::Added;
    return Join(loss.Words, loss.Reason.empty() ? "" : " ", loss.Reason, cannotKeep ? " It cannot be kept." : "");
}

Changes_Frm::Changes_Frm(Run& owner, const SaveReport& report, const SaveTexts& texts, ChangesTime time)
    : ModalWindow(owner, "Changes_Frm"), Losses(report.Losses) {
    const bool saves = time == ChangesTime::Saving;
    Caption = "What This Save Changes";
    std::stable_partition(Losses.begin(), Losses.end(), [](const SaveLoss& loss) { return !loss.ByUser; });
    for (const SaveLoss& loss : Losses) {
        Losses_Lst.Items.push_back(LossText(loss));
    }
    Losses_Lbl.Caption = Heading(report, Losses);
    Difference_Lst.LeftTitle = "The File";
    Difference_Lst.RightTitle = "What Is Saved";
    Difference_Lst.Compare(texts.File, texts.Written);
    Difference_Lbl.Caption = LinesText(Difference_Lst.Changes());
    NextChange_Cmd.Caption = "&Next Change";
    NextChange_Cmd.ToolTip = "Go on to the next lines that differ";
    NextChange_Cmd.Enabled = Difference_Lst.Changes() > 0;
    Keep_Cmd.Caption = "&Keep These";
    Keep_Cmd.ToolTip =
        "Put what would be lost into the Free Form Additions, which are saved to the letter, and take out of "
        "them what undoes a change of yours";
    Keep_Cmd.Enabled = report.Keeps;
    Keep_Cmd.Default = Keep_Cmd.Enabled;
    Save_Cmd.Caption = "&Save Anyway";
    Save_Cmd.ToolTip = "Save the script without them. What the file holds now is kept as a version";
    Save_Cmd.Visible = saves;
    Close_Cmd.Caption = saves ? "&Cancel" : "&Close";
    Close_Cmd.ToolTip = saves ? "Save nothing" : "Leave the script as it is";
    Focus = Keep_Cmd.Enabled ? "Keep_Cmd" : "Close_Cmd";
    Losses_Lst.ListIndex = Losses.empty() ? -1 : 0;
    Changes_Losses_Lst_Click(*this);
}

void Changes_Losses_Lst_Click(Changes_Frm& form) {
    if (!form.Losses_Lst.HasSelection()) {
        return;
    }
    form.Loss_Txt.Text = form.Losses_Lst.Selected();
    const ScriptDifference& about = form.Losses[static_cast<std::size_t>(form.Losses_Lst.ListIndex)].Difference;
    const std::vector<DifferenceRow>& rows = form.Difference_Lst.Rows();
    const auto row = std::ranges::find_if(rows, [&](const DifferenceRow& each) {
        return about.Before.Line != 0 ? each.LeftLine == about.Before.Line
                                      : about.After.Line != 0 && each.RightLine == about.After.Line;
    });
    if (row != rows.end()) {
        form.Difference_Lst.ListIndex = static_cast<int>(row - rows.begin());
    }
}

void Changes_NextChange_Cmd_Click(Changes_Frm& form) {
    SelectNextChange(form.Difference_Lst);
}

void Changes_Keep_Cmd_Click(Changes_Frm& form) {
    form.Answer = ChangesAnswer::Keep;
    form.Closed = true;
}

void Changes_Save_Cmd_Click(Changes_Frm& form) {
    form.Answer = ChangesAnswer::Save;
    form.Closed = true;
}

void Changes_Close_Cmd_Click(Changes_Frm& form) {
    form.Closed = true;
}

}  // namespace lv
