#include "catalogs/forms/entry_forms.h"

#include <wx/button.h>
#include <wx/radiobut.h>
#include <wx/statbox.h>

#include "catalogs/editors/add_demo.h"
#include "catalogs/editors/add_exe.h"
#include "catalogs/editors/add_game.h"
#include "catalogs/editors/add_script.h"
#include "catalogs/editors/add_server.h"
#include "catalogs/editors/choose_script.h"
#include "catalogs/editors/edit_memory.h"
#include "catalogs/forms/path_form.h"
#include "foundation/field_strings.h"
#include "foundation/forms/modal_form.h"
#include "foundation/forms/wx_text.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

using Form = std::unique_ptr<ModalForm>;

constexpr int kMessageWidth = 380;  // at 100 %

Form Start(wxWindow* owner, EntryWindow& entry) {
    return std::make_unique<ModalForm>(owner, entry, [&entry] { Entry_Cancel_Cmd_Click(entry); });
}

template <class Entry>
Form End(Form form, Entry& entry, void (*ok)(Entry&)) {
    form->Finish(form->MakeButton("OK_Cmd", entry.OK_Cmd, [&entry, ok] { ok(entry); }),
                 form->MakeButton("Cancel_Cmd", entry.Cancel_Cmd, [&entry] { Entry_Cancel_Cmd_Click(entry); }));
    return form;
}

/// The dialog of a title and a path or name, with a button to browse.
struct TitleAndPath {
    Label& TitleLabel;
    const char* TitleLabelName;
    TextBox& Title;
    const char* TitleName;
    Label& PathLabel;
    const char* PathLabelName;
    TextBox& Path;
    const char* PathName;
};

template <class Entry>
Form Make(wxWindow* owner, Entry& entry, const TitleAndPath& parts, void (*browse)(Entry&), void (*ok)(Entry&)) {
    Form form = Start(owner, entry);
    form->AddField(parts.TitleLabel, parts.TitleLabelName, form->MakeText(parts.TitleName, parts.Title));
    wxTextCtrl* path = form->MakeText(parts.PathName, parts.Path);
    form->AddField(parts.PathLabel, parts.PathLabelName, path,
                   form->MakeButton("Browse_Cmd", entry.Browse_Cmd, [&entry, browse] { browse(entry); }));
    return End(std::move(form), entry, ok);
}

template <class Entry>
void AddServerTypes(ModalForm& form, Entry& entry, const wxString& title, void (*pick)(Entry&, Index)) {
    auto* frame = new wxStaticBoxSizer(wxVERTICAL, &form, title);
    auto* grid = new wxGridSizer(2, 4, 24);
    for (std::size_t i = 0; i < entry.Server_Opt.size(); ++i) {
        auto* option = new wxRadioButton(frame->GetStaticBox(), wxID_ANY, ToWx(entry.Server_Opt[i]), wxDefaultPosition,
                                         wxDefaultSize, i == 0 ? wxRB_GROUP : 0);
        option->SetName(wxString::Format("Server_Opt(%d)", static_cast<int>(i)));
        option->SetValue(static_cast<Index>(i) == entry.ServerType);
        option->Bind(wxEVT_RADIOBUTTON, [&form, &entry, pick, i](wxCommandEvent&) {
            form.Controls.Run([&] { pick(entry, static_cast<Index>(i)); });
        });
        grid->Add(option);
    }
    frame->Add(grid, wxSizerFlags().Border(wxALL, 6));
    form.AddWide(frame);
}

Form MakeServer(wxWindow* owner, AddServer_Frm& entry) {
    Form form = Start(owner, entry);
    form->AddField(entry.ServerTitle_Lbl, "ServerTitle_Lbl", form->MakeText("ServerTitle_Txt", entry.ServerTitle_Txt));
    form->AddField(entry.ServerPath_Lbl, "ServerPath_Lbl", form->MakeText("ServerPath_Txt", entry.ServerPath_Txt));
    form->AddField(entry.Port_Lbl, "Port_Lbl", form->MakeText("Port_Txt", entry.Port_Txt, 100));
    form->AddField(entry.Password_Lbl, "Password_Lbl", form->MakeText("Password_Txt", entry.Password_Txt));
    AddServerTypes(*form, entry, ToWx(Trim(entry.Server_Fra.Caption)), AddServer_Server_Opt_Click);
    return End(std::move(form), entry, AddServer_OK_Cmd_Click);
}

Form MakeServerType(wxWindow* owner, SelectServerType_Frm& entry) {
    Form form = Start(owner, entry);
    // Not bound: it never changes, and a bound label would lose its line breaks.
    auto* message = new wxStaticText(form.get(), wxID_ANY, ToWx(entry.Message_Lbl.Caption));
    message->SetName("Message_Lbl");
    message->Wrap(form->FromDIP(kMessageWidth));
    form->AddWide(message);
    AddServerTypes(*form, entry, "", SelectServerType_Server_Opt_Click);
    return End(std::move(form), entry, SelectServerType_OK_Cmd_Click);
}

Form MakeMemory(wxWindow* owner, EditMem_Frm& entry) {
    Form form = Start(owner, entry);
    for (int i = 0; i < 3; ++i) {
        const auto at = static_cast<std::size_t>(i);
        auto* list = new wxChoice(form.get(), wxID_ANY);
        form->Controls.Bind(wxString::Format("Ram_Cbo(%d)", i).utf8_str(), entry.Ram_Cbo[at], list,
                            [&entry, i] { EditMem_Ram_Cbo_Click(entry, i); });
        form->AddField(entry.Label1[at], wxString::Format("Label1(%d)", i).utf8_str(), list,
                       form->MakeLabel(form.get(), wxString::Format("Label2(%d)", i).utf8_str(), entry.Label2[at]));
    }
    return End(std::move(form), entry, EditMem_OK_Cmd_Click);
}

Form MakeChooseScript(wxWindow* owner, ChooseScript_Frm& entry) {
    Form form = Start(owner, entry);
    wxTextCtrl* path = form->MakeText("ScriptPath_Txt", entry.ScriptPath_Txt);
    form->AddField(entry.Label2, "Label2", path, form->MakeButton("Browse_Cmd", entry.Browse_Cmd, [&entry] {
        ChooseScript_Browse_Cmd_Click(entry);
    }));
    return End(std::move(form), entry, ChooseScript_OK_Cmd_Click);
}

Form MakeTitled(wxWindow* owner, ModalWindow& window) {
    if (auto* exe = dynamic_cast<AddExe_Frm*>(&window)) {
        return Make(owner, *exe,
                    {exe->ExeTitle_Lbl, "ExeTitle_Lbl", exe->ExeTitle_Txt, "ExeTitle_Txt", exe->ExePath_Lbl,
                     "ExePath_Lbl", exe->ExePath_Txt, "ExePath_Txt"},
                    AddExe_Browse_Cmd_Click, AddExe_OK_Cmd_Click);
    }
    if (auto* game = dynamic_cast<AddGame_Frm*>(&window)) {
        return Make(owner, *game,
                    {game->GameTitle_Lbl, "GameTitle_Lbl", game->GameTitle_Txt, "GameTitle_Txt", game->GamePath_Lbl,
                     "GamePath_Lbl", game->GamePath_Txt, "GamePath_Txt"},
                    AddGame_Browse_Cmd_Click, AddGame_OK_Cmd_Click);
    }
    if (auto* script = dynamic_cast<AddScript_Frm*>(&window)) {
        return Make(owner, *script,
                    {script->ScriptTitle_Lbl, "ScriptTitle_Lbl", script->ScriptTitle_Txt, "ScriptTitle_Txt",
                     script->ScriptPath_Lbl, "ScriptPath_Lbl", script->ScriptPath_Txt, "ScriptPath_Txt"},
                    AddScript_Browse_Cmd_Click, AddScript_OK_Cmd_Click);
    }
    if (auto* demo = dynamic_cast<AddDemo_Frm*>(&window)) {
        return Make(owner, *demo,
                    {demo->DemoTitle_Lbl, "DemoTitle_Lbl", demo->DemoTitle_Txt, "DemoTitle_Txt", demo->DemoPath_Lbl,
                     "DemoPath_Lbl", demo->DemoPath_Txt, "DemoPath_Txt"},
                    AddDemo_Browse_Cmd_Click, AddDemo_OK_Cmd_Click);
    }
    return nullptr;
}

}  // namespace

std::unique_ptr<wxDialog> MakeEntryForm(wxWindow* owner, ModalWindow& window) {
    if (auto* path = dynamic_cast<Path_Frm*>(&window)) {
        return std::make_unique<PathForm>(owner, *path);
    }
    if (auto* server = dynamic_cast<AddServer_Frm*>(&window)) {
        return MakeServer(owner, *server);
    }
    if (auto* type = dynamic_cast<SelectServerType_Frm*>(&window)) {
        return MakeServerType(owner, *type);
    }
    if (auto* memory = dynamic_cast<EditMem_Frm*>(&window)) {
        return MakeMemory(owner, *memory);
    }
    if (auto* script = dynamic_cast<ChooseScript_Frm*>(&window)) {
        return MakeChooseScript(owner, *script);
    }
    return MakeTitled(owner, window);
}

}  // namespace lv
