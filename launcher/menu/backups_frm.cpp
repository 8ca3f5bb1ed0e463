#include "launcher/menu/backups_frm.h"

#include "foundation/error_lines.h"
#include "foundation/question_box.h"

namespace lv {

namespace {

constexpr const char* kTitle = "Backups of the Settings";

KeptSettings Read(Run& run, const Backup& backup) {
    auto values = ReadSettingsFile(run, backup.Path);
    KeptSettings kept{backup.When, std::move(values.Value), std::move(values.Fault), {}};
    if (!kept.Fault) {
        auto changes = ChangesOfImport(run, kept.Values);
        kept.Changes = changes.Value;
        kept.Fault = std::move(changes.Fault);
    }
    return kept;
}

/// "2026-11-23 08:52:11   differs in 3 list entries and 1 setting"
Text RowText(const KeptSettings& kept) {
    if (kept.Fault) {
        return Join(kept.When, "   cannot be read");
    }
    return Join(kept.When, "   ", kept.Changes.Any() ? Join("differs in ", ChangesText(kept.Changes)) : "as it is now");
}

KeptSettings* Selected(Backups_Frm& form) {
    return form.Backups_Lst.HasSelection() ? &form.Kept[static_cast<std::size_t>(form.Backups_Lst.ListIndex)] : nullptr;
}

Text AboutSelected(const KeptSettings& kept) {
    if (kept.Fault) {
        return Join(kept.Fault.Text, ".");
    }
    return kept.Changes.Any() ? Join("Bringing it back changes ", ChangesText(kept.Changes), ".")
                              : "It is what is there now.";
}

}  // namespace

Backups_Frm::Backups_Frm(Run& owner) : ModalWindow(owner, "Backups_Frm") {
    Caption = kTitle;
    Backups_Lbl.Caption = "At each start, and before others take their place, a copy of the settings is kept:";
    BringBackup_Cmd.Caption = "&Bring Back";
    BringBackup_Cmd.ToolTip = "Put the selected copy in the place of the settings. Those are copied first";
    CloseBackups_Cmd.Caption = "&Close";
    for (const Backup& backup : Backups(owner)) {
        Kept.push_back(Read(owner, backup));
        Backups_Lst.Items.push_back(RowText(Kept.back()));
    }
    Backups_Lst.ListIndex = Kept.empty() ? -1 : 0;
    Focus = "Backups_Lst";
    Backups_Lst_Click(*this);
}

void Backups_Lst_Click(Backups_Frm& form) {
    const KeptSettings* const kept = Selected(form);
    form.Backup_Lbl.Caption = kept != nullptr ? AboutSelected(*kept) : "There is none yet.";
    form.BringBackup_Cmd.Enabled = kept != nullptr && !kept->Fault && kept->Changes.Any();
}

void Backups_BringBackup_Cmd_Click(Backups_Frm& form) {
    const KeptSettings* const kept = Selected(form);
    if (kept == nullptr || !form.BringBackup_Cmd.Enabled) {
        return;
    }
    const Text question =
        Join("Bring back the settings of ", kept->When, "?", NewLine, NewLine, "This changes ",
             ChangesText(kept->Changes), ".", NewLine, "What is there now is kept as a backup itself.");
    if (AskUser(form.run, kTitle, question, "&Bring Back,&Cancel") != 0) {
        return;
    }
    auto done = ImportValues(form.run, kept->Values, {});
    if (!done.Ok()) {
        AskUser(form.run, kTitle,
                Join("The settings could not be brought back, and are as they were.", NewLine, NewLine,
                     ErrorLines(done.Fault)));
        return;
    }
    form.BroughtBack = std::move(done.Value);
    form.Closed = true;
}

void Backups_CloseBackups_Cmd_Click(Backups_Frm& form) {
    form.Closed = true;
}

}  // namespace lv
