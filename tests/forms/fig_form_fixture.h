// tests/forms/fig_form_fixture.h
//
// The real editor over the real main window, on a platform in memory.

#pragma once

#include <wx/timer.h>

#include <gtest/gtest.h>
#include <wx/uiaction.h>

#include "catalogs/forms/entry_forms.h"
#include "foundation/field_strings.h"
#include "foundation/forms/wx_text.h"
#include "foundation/settings.h"
#include "foundry/editor/setup_foundry.h"
#include "foundry/forms/fig_form.h"
#include "foundry/forms/foundry_forms.h"
#include "foundry/forms/sf_splash_form.h"
#include "foundry/foundry.h"
#include "launcher/forms/lv_form.h"
#include "launcher/start/main_window_load.h"
#include "launcher/window/lv_events.h"
#include "launcher/window/window_life.h"
#include "platform/memory/memory_platform.h"
#include "tests/forms/form_driver.h"
#include "tests/foundry/script_fixture.h"

namespace lv {

/// A game of each kind, with its program, its directory of scripts and one script.
struct KindOfGame {
    ScriptDialect Dialect;
    const char* Name;
    const char* Program;
    const char* Script;
};

// clang-format off
constexpr KindOfGame kGames[] = {
    {kQuakeDialect,      "quake",      "C:\\QUAKE\\GLQUAKE.EXE",            "C:\\QUAKE\\ID1\\my.cfg"},
    {kQuakeWorldDialect, "quakeworld", "C:\\QUAKE\\QWCL.EXE",               "C:\\QUAKE\\ID1\\my.cfg"},
    {kHexen2Dialect,     "hexen2",     "C:\\HEXEN2\\GLH2.EXE",              "C:\\HEXEN2\\DATA1\\my.cfg"},
    {kQuake2Dialect,     "quake2",     "C:\\QUAKE2\\QUAKE2.EXE",            "C:\\QUAKE2\\BASEQ2\\my.cfg"},
    {kUnrealDialect,     "unreal",     "C:\\UNREAL\\SYSTEM\\UNREAL.EXE",    "C:\\UNREAL\\SYSTEM\\unreal.ini"},
    {kSinDialect,        "sin",        "C:\\SIN\\SIN.EXE",                  "C:\\SIN\\BASE\\my.cfg"},
    {kHeretic2Dialect,   "heretic2",   "C:\\HERETIC2\\HERETIC2.EXE",        "C:\\HERETIC2\\BASE\\my.cfg"},
    {kHalfLifeDialect,   "half_life",  "C:\\SIERRA\\HALF-LIFE\\HL.EXE",     "C:\\SIERRA\\HALF-LIFE\\VALVE\\my.cfg"},
};
// clang-format on

/// Presses the first button of the question box that comes up.
class AnswersBoxes : public wxTimer {
  public:
    AnswersBoxes() { Start(100); }
    void Notify() override {
        wxWindow* const button = wxWindow::FindWindowByName("Button_Cmd(0)");
        if (button != nullptr && button->IsShownOnScreen() && ++seen_ == 3) {
            Stop();
            ClickOn(button);
        }
    }

  private:
    int seen_ = 0;
};

class FigForm_ : public ::testing::Test {
  protected:
    FigForm_() {
        Save(run, "LV-Stuff", "FirstTime", 0);
        Save(run, "ShowMessage", "HL_Phun-Names", 0);
        user.AddForms(MakeEntryForm);
        user.AddForms(MakeFoundryForms(user));
        ConnectEditor(foundry);
    }
    ~FigForm_() override { LeaveMain(); }

    void LeaveMain() {
        if (main != nullptr) {
            main->Destroy();
            main = nullptr;
        }
        Settle();
    }

    /// Puts the script there, in the main window's list, and its game. May be called again: the window is another one
    /// then.
    void Use(const KindOfGame& game, TextView script) {
        LeaveMain();
        system.Disk.AddFile(game.Program);
        system.Disk.AddFile(game.Script, Join("//* Setup Foundry   *//", NewLine, Crlf(script)));
        Save(run, kOptions, "Executables", Join("The game;", game.Program));
        main = new LvForm(launcher, user);
        ASSERT_TRUE(LV_Frm_Load(launcher));
        ShowMainWindow(launcher);
        BringForward(main);
        launcher.Window.Script_Cbo.Items = {Text("my") + Text(98, ' ') + game.Script};
        launcher.Window.Script_Cbo.ListIndex = 0;
        run.GameKind = game.Dialect.GameKind;
        run.ScriptFamily = game.Dialect.ScriptFamily;
        run.IsQuakeWorld = game.Dialect.IsQuakeWorld;
        user.Refresh();
        path = game.Script;
    }

    /// Opens the editor, does the work, and closes it without a question.
    void Edit(const std::function<void()>& work) {
        DoAndAnswer([this] { SetupFoundry_Bar_Click(foundry); },
                    [this, &work] {
                        form = dynamic_cast<FigForm*>(Find("Fig_Frm"));
                        ASSERT_NE(form, nullptr);
                        work();
                        if (!form->Model().Closed) {
                            form->Model().Document.ScriptClean = true;
                            form->Close();
                        }
                    });
    }

    /// Those that nobody has looked at yet.
    void MakeAllPages() const {
        while (form->MakeSome()) {
        }
    }
    void Turn(EditorPage page) {
        FindAs<wxNotebook>("Main_Tab")->SetSelection(static_cast<std::size_t>(page));
        Settle();
    }
    void TurnBindings(BindingsPage page) {
        Turn(EditorPage::Bindings);
        auto* tabs = FindAs<wxNotebook>("Bindings_Tab");
        const wxString caption =
            wxControl::RemoveMnemonics(ToWx(Trim(form->Model().Bindings_Tab[static_cast<std::size_t>(page)].Caption)));
        for (std::size_t tab = 0; tab < tabs->GetPageCount(); ++tab) {
            if (tabs->GetPageText(tab) == caption) {
                tabs->SetSelection(tab);
            }
        }
        Settle();
        EXPECT_EQ(form->Model().Bindings_Tab.Tab, static_cast<int>(page));
    }

    static wxPoint MiddleOf(const std::string& name) {
        const wxRect place = Find(name)->GetScreenRect();
        return place.GetTopLeft() + wxPoint(place.width / 2, place.height / 2);
    }

    static void MoveTo(const wxPoint& to) {
        wxUIActionSimulator().MouseMove(to);
        SettleUntil([&to] { return wxGetMousePosition() == to; }, 1000);
        Settle(60);
    }

    /// Presses the mouse on the key, which becomes the pointer's unless it can't be bound.
    void Grab(const std::string& key) const {
        MoveTo(MiddleOf(key));
        wxUIActionSimulator().MouseDown();
        SettleUntil([this] { return form->Model().Drag.Icon != DragIcon::None; }, 1000);
        Settle(60);
    }

    /// Takes the key to the row; Drop lets go.
    void Carry(const std::string& key, const std::string& row) const {
        Grab(key);
        const wxPoint from = MiddleOf(key);
        const wxPoint to = MiddleOf(row);
        MoveTo(from + (to - from) / 2);
        MoveTo(to);
    }
    static void Drop() {
        wxUIActionSimulator().MouseUp();
        Settle();
    }
    void Drag(const std::string& key, const std::string& row) const {
        Carry(key, row);
        Drop();
    }

    static Text Shown(const std::string& label) { return Trim(FindAs<CellLabel>(label)->Shown().Caption); }
    static Color BackOf(const std::string& label) { return FindAs<CellLabel>(label)->Shown().Back; }
    Text File() { return system.Disk.Read(path).Value; }

    MemoryPlatform system;
    WxUser user{system.Disk};
    lv::Run run{system.Services, user};
    Launcher launcher{run};
    SetupFoundry foundry{launcher};
    SFSplashWindow splash{foundry, user};
    LvForm* main = nullptr;
    FigForm* form = nullptr;
    Text path;
};

}  // namespace lv
