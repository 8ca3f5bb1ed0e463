#include "foundry/look/script_check_frm.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundry/look/script_text_frm.h"

namespace lv {

namespace {

Text CountText(const std::vector<Finding>& findings) {
    const auto sure = std::ranges::count(findings, Certainty::Sure, &Finding::How);
    const auto perhaps = static_cast<std::ptrdiff_t>(findings.size()) - sure;
    if (findings.empty()) {
        return "Nothing was found that the game would take otherwise.";
    }
    return Join("What the game takes otherwise than it may be meant: ", std::to_string(sure), " sure, ",
                std::to_string(perhaps), " perhaps.");
}

}  // namespace

ScriptCheck_Frm::ScriptCheck_Frm(Run& owner, const StartRequest& request, TextView note)
    : ModalWindow(owner, "ScriptCheck_Frm"), Request(request), Findings(CheckScriptsOf(owner.System.Disk, request)) {
    Caption = "Script Check";
    Note_Lbl.Caption = note;
    Note_Lbl.Visible = !note.empty();
    std::stable_partition(Findings.begin(), Findings.end(),
                          [](const Finding& each) { return each.How == Certainty::Sure; });
    for (const Finding& finding : Findings) {
        Findings_Lst.Items.push_back(FindingLine(finding));
    }
    Findings_Lst.ListIndex = Findings.empty() ? -1 : 0;
    Findings_Lbl.Caption = CountText(Findings);
    Show_Cmd.Caption = "&Show the Line";
    Show_Cmd.ToolTip = "Show the script at the line that this is about";
    Close_Cmd.Caption = "&Close";
    Focus = Findings.empty() ? "Close_Cmd" : "Findings_Lst";
    ScriptCheck_Findings_Lst_Click(*this);
}

void ScriptCheck_Findings_Lst_Click(ScriptCheck_Frm& form) {
    form.Show_Cmd.Enabled = form.Findings_Lst.HasSelection();
}

void ScriptCheck_Show_Cmd_Click(ScriptCheck_Frm& form) {
    if (!form.Findings_Lst.HasSelection()) {
        return;
    }
    const Finding& finding = form.Findings[static_cast<std::size_t>(form.Findings_Lst.ListIndex)];
    StartRequest request = form.Request;
    request.RunsLongOnes = true;  // as the check does
    const StartRun start = RunStart(form.run.System.Disk, request);
    const auto script = std::ranges::find_if(start.Scripts, [&](const RunScript& each) {
        return !each.Path.empty() && (SameText(each.Path, finding.File) || SameText(each.Name, finding.File) ||
                                      SameText(LastPathPart(each.Path), finding.File));
    });
    if (script != start.Scripts.end()) {
        ShowScriptText(form.run, form.Request, *script, finding.Line);
    }
}

void ScriptCheck_Close_Cmd_Click(ScriptCheck_Frm& form) {
    form.Closed = true;
}

}  // namespace lv
