#include "launcher/menu/window_menu.h"

#include "catalogs/editors/delete_entry.h"
#include "foundation/about_box.h"
#include "foundation/browse.h"
#include "foundation/error_lines.h"
#include "foundation/field_strings.h"
#include "foundation/padded_item.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"

namespace lv {

Text NameNice(TextView text) {
    Text name = LowerCase(Trim(text));
    if (name.empty()) {
        return name;
    }
    name.front() = UpperCase(name.front());
    const std::size_t blank = name.find(' ');
    if (blank != Text::npos && blank + 1 < name.size()) {
        name[blank + 1] = UpperCase(name[blank + 1]);
    }
    return name;
}

Text WithoutAccessKeys(TextView caption) {
    Text shown;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] != '&') {
            shown += caption[i];
        } else if (i + 1 < caption.size() && caption[i + 1] == '&') {
            shown += '&';
            ++i;
        }
    }
    return shown;
}

void RenameButton_Bar_Click(Launcher& launcher) {
    Run& run = launcher.run;
    LV_Frm& window = launcher.Window;
    std::optional<Text> caption;
    {
        const TopmostSuspension dialog(run);
        caption = run.User.InputBox("New Caption", "Enter a New Caption for the Exec Button!", "");
    }
    if (!caption || caption->empty()) {
        return;
    }
    Save(run, kOptions, "CommandCaption", TextView(*caption));
    window.DoIt_Cmd[0].Caption = *caption;
    window.Bar(MenuItem::Launch_Bar).Caption = *caption;
    window.ButtonBar_Cmd[0].ToolTip = WithoutAccessKeys(*caption);
}

void SetAlwaysOnTop(Launcher& launcher, bool onTop) {
    TopmostState& topmost = launcher.run.Topmost;
    launcher.Window.Bar(MenuItem::AlwaysOnTop_Bar).Checked = onTop;
    topmost.AlwaysOnTop = onTop;
    topmost.InBand = onTop && topmost.Nesting == 0;
}

void AlwaysOnTop_Bar_Click(Launcher& launcher) {
    const bool onTop = !launcher.Window.Bar(MenuItem::AlwaysOnTop_Bar).Checked;
    SetAlwaysOnTop(launcher, onTop);
    Save(launcher.run, kOptions, "OnTop", onTop ? "True" : "False");
}

void SetupFoundry_Bar_Click(Launcher& launcher) {
    if (launcher.OpenSetupFoundry) {
        launcher.OpenSetupFoundry();
    }
}

void FileOrder_Bar_Click(Launcher& launcher) {
    if (launcher.ShowFileOrder) {
        launcher.ShowFileOrder();
    }
}

void ScriptCheck_Bar_Click(Launcher& launcher) {
    if (launcher.ShowScriptCheck) {
        launcher.ShowScriptCheck();
    }
}

void ScriptEditorChangeDefault_Bar_Click(Launcher& launcher) {
    Run& run = launcher.run;
    const Text start = BrowseStart(run, GetSetting(run, run.AppName, kOptions, "ScriptEditor"));
    if (const auto editor = BrowseForProgram(run, "Executables (*.exe)|*.exe|All Files (*.*)|*.*", start)) {
        Save(run, kOptions, "ScriptEditor", TextView(*editor));
    }
}

void ScriptsOpen_Bar_Click(Launcher& launcher) {
    Run& run = launcher.run;
    const ListBox& scripts = launcher.Window.Script_Cbo;
    if (!scripts.HasSelection()) {
        AskUser(run, "", kNoScript);
        return;
    }
    const Text editor = GetSetting(run, run.AppName, kOptions, "ScriptEditor", "notepad.exe");
    const Text script = ItemValue(scripts.Selected());
    if (const Error failed = run.System.Programs.StartProgram(editor, {script})) {
        AskUser(run, Join("Error Opening Default Editor [", editor, "]").c_str(), ErrorLines(failed));
    }
}

void HelpView_Bar_Click(Launcher& launcher) {
    OpenHelpFile(launcher.run);
}

void WhatsThis_Bar_Click(Launcher& launcher) {
    launcher.run.User.EnterWhatsThis();
}

void WebSite_Bar_Click(Launcher& launcher) {
    OpenWebPage(launcher.run, launcher.run.HomePage);
}

void HelpAbout_Bar_Click(Launcher& launcher) {
    ShowAboutBox(launcher.run);
}

void DryRun_Bar_Click(Launcher& launcher) {
    if (launcher.ShowDryRun) {
        launcher.ShowDryRun();
    }
}

}  // namespace lv
