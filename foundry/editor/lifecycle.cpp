#include "foundry/editor/lifecycle.h"

#include <iterator>
#include <limits>

#include "foundation/numbers.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "foundry/editor/aliases_page.h"
#include "foundry/editor/bindings_page.h"
#include "foundry/editor/confirm_exit.h"
#include "foundry/editor/controllers.h"
#include "foundry/editor/key_picture.h"
#include "foundry/editor/kind_layout.h"
#include "foundry/editor/rescued_edits.h"
#include "foundry/editor/script_looks.h"
#include "foundry/editor/settings_pages.h"
#include "foundry/writing/save_script.h"

namespace lv {

namespace {

constexpr TextView kSection = "SetupFoundry";
constexpr TextView kMinutes[] = {"1", "2", "3", "4", "5", "10", "15", "20", "25", "30"};
constexpr int kFiveMinutes = 4;  // the row of "5"

// Of View_Cmd.
constexpr int kSave = 6;
constexpr int kSaveAs = 7;

void Place(Fig_Frm& form) {
    if (form.Measure) {
        const TwipsSize size = form.Measure();
        form.Placement.Width = size.Width;
        form.Placement.Height = size.Height;
    }
    LoadPlacement(form.run, form.Name, form.Placement, ScreenInTwips(form.run));
}

void ReadBox(Fig_Frm& form, CheckBox& box, TextView key) {
    box.Value = GetNumber(form.run, kSection, key) == 1 ? 1 : 0;
}

void ReadSettings(Fig_Frm& form) {
    ReadBox(form, form.AutoSaveEnable_Chk, "EnableAutoSave");
    ReadBox(form, form.AutoSaveWarning_Chk, "AutoSaveWarning");
    ReadBox(form, form.ExitOnSave_Chk, "ExitOnSave");
    const Index row = GetNumber(form.run, kSection, "AutoSaveMinutesIndex", -1);
    if (row >= -1 && row < static_cast<int>(std::size(kMinutes))) {
        form.Minutes_Cbo.ListIndex = row;
    } else {
        form.Minutes_Cbo.ListIndex = form.AutoSaveEnable_Chk.Value == 1 ? kFiveMinutes : -1;
    }
}

/// False if the user, having seen what the save would change, wants none.
bool SaveDocument(Fig_Frm& form, SaveName name) {
    if (!MaySaveChanges(form)) {
        return false;
    }
    const SaveManner manner = {.Name = name, .Quiet = form.AutoSaveRunning};
    const Text opened = form.Document.CurrentScriptPath;
    if (SaveScript(form.run, form.Lists, form.Document, form, manner)) {
        DropRescuedEdits(form.run, opened);
        form.Caption = form.Document.Caption;
        NoteSaved(form);
    }
    return true;
}

// A save ends the program where the catalog of scripts turns out to be damaged. The window goes with it.
void UnloadAfterSave(Fig_Frm& form, bool wanted) {
    if (wanted || form.run.Ended) {
        Fig_Frm_Unload(form);
    }
}

/// True if the window may close.
bool MayLeaveChanges(Fig_Frm& form) {
    if (form.Document.ScriptClean) {
        return true;
    }
    const ExitAnswer answer = ConfirmExit(form.run);
    // ExitOnSave_Chk has no say here: what was answered decides on the window.
    if ((answer == ExitAnswer::SaveAndExit || answer == ExitAnswer::SaveAndStay) &&
        !SaveDocument(form, SaveName::Same)) {
        return form.run.Ended;
    }
    return answer == ExitAnswer::Exit || answer == ExitAnswer::SaveAndExit || form.run.Ended;
}

bool AutoSaveIsDue(const Fig_Frm& form) {
    return form.AutoSaveEnable_Chk.Value == 1 && form.MinutesSinceAutoSave >= ToNumber(form.Minutes_Cbo.Selected());
}

bool MayAutoSave(Fig_Frm& form) {
    return form.AutoSaveWarning_Chk.Value != 1 ||
           AskUser(form.run, "Hey There...", "This is your 'Official AutoSave Warning'. Save this script now?",
                   "&OK,&No Way!") == 0;
}

void AutoSave(Fig_Frm& form) {
    form.MinutesSinceAutoSave = 0;
    form.AutoSaveRunning = true;
    SaveDocument(form, SaveName::Same);
    form.AutoSaveRunning = false;
    UnloadAfterSave(form, false);
}

std::size_t ShownSection(const Fig_Frm& form) {
    const ScriptDocument& document = form.Document;
    const std::size_t row =
        document.Section_Cbo.HasSelection() ? static_cast<std::size_t>(document.Section_Cbo.ListIndex) : 0;
    return row < document.Sections.size() ? row : 0;
}

}  // namespace

void PrepareEditor(Fig_Frm& form, const ScriptDialect& dialect) {
    LayOutKeys(form);  // ahead of the reader, which gives the keys their colours
    form.Document = MakeScriptDocument(dialect);
    PaintLabels(form);
    ApplyGameKind(form);
}

void Fig_Frm_Load(Fig_Frm& form) {
    Place(form);
    form.Main_Tab.Tab = 0;
    form.Bindings_Tab.Tab = 0;
    form.Document.Options_Tab.Tab = 0;
    PaintLabels(form);
    form.Minutes_Cbo.Items.assign(std::begin(kMinutes), std::end(kMinutes));
    ReadSettings(form);
    form.Caption = form.Document.Caption;
    form.Document.ScriptClean = true;
    LoadPhunNames(form);
    ApplyGameKind(form);
    FillAliasList(form);
    Main_Tab_Click(form, static_cast<int>(EditorPage::Player));
    form.Document.ScriptClean = true;
    form.Device_Cbo.ListIndex = 0;
    Device_Cbo_Click(form);
    StartHistory(form);
    form.Save_Tmr_Enabled = true;
    form.Loaded = true;
}

bool Fig_Frm_Unload(Fig_Frm& form) {
    if (form.Closed) {
        return true;
    }
    if (!MayLeaveChanges(form)) {
        return false;
    }
    SavePlacement(form.run, form.Name, form.Placement);
    if (!form.run.Ended) {
        DropRescuedEdits(form.run, form.Document.CurrentScriptPath);
    }
    form.Save_Tmr_Enabled = false;
    form.Loaded = false;
    form.Closed = true;
    return true;
}

void View_Cmd_Click(Fig_Frm& form, int index) {
    if (index != kSave && index != kSaveAs) {
        return;
    }
    const bool went = SaveDocument(form, index == kSave ? SaveName::Same : SaveName::AskForIt);
    UnloadAfterSave(form, went && form.ExitOnSave_Chk.Value == 1);
}

void UnloadSF_Cmd_Click(Fig_Frm& form) {
    form.Document.ScriptClean = true;
    Fig_Frm_Unload(form);
}

void Save_Tmr_Timer(Fig_Frm& form) {
    if (!form.Save_Tmr_Enabled) {
        return;
    }
    if (form.MinutesSinceAutoSave < std::numeric_limits<Index>::max()) {
        ++form.MinutesSinceAutoSave;
    }
    if (form.AutoSavePass || !AutoSaveIsDue(form)) {
        return;
    }
    form.AutoSavePass = true;
    if (MayAutoSave(form)) {
        AutoSave(form);
    }
    form.AutoSavePass = false;
}

void AutoSaveEnable_Chk_Click(Fig_Frm& form) {
    Save(form.run, kSection, "EnableAutoSave", form.AutoSaveEnable_Chk.Value);
}

void Minutes_Cbo_Click(Fig_Frm& form) {
    Save(form.run, kSection, "AutoSaveMinutesIndex", form.Minutes_Cbo.ListIndex);
}

void AutoSaveWarning_Chk_Click(Fig_Frm& form) {
    Save(form.run, kSection, "AutoSaveWarning", form.AutoSaveWarning_Chk.Value);
}

void ExitOnSave_Chk_Click(Fig_Frm& form) {
    Save(form.run, kSection, "ExitOnSave", form.ExitOnSave_Chk.Value);
}

TextView FreeForm_Txt(const Fig_Frm& form) {
    const std::vector<ScriptSection>& sections = form.Document.Sections;
    return sections.empty() ? TextView() : TextView(sections[ShownSection(form)].Text);
}

void Section_Cbo_Click(Fig_Frm& form) {
    ListBox& sections = form.Document.Section_Cbo;
    if (!sections.HasSelection()) {
        sections.ListIndex = sections.Items.empty() ? -1 : 0;
    }
}

void FreeForm_Txt_Change(Fig_Frm& form, TextView text) {
    if (form.Document.ScriptLoading || form.Document.Sections.empty() || FreeForm_Txt(form) == text) {
        return;
    }
    form.Document.Sections[ShownSection(form)].Text = text;
    Edited(form);
}

}  // namespace lv
