// bench/foundry_form_bench.cpp
//
// The script editor on the screen: from the click to the window with a script of 10,000 lines, less the second that the
// splash stands on purpose (limit 150 ms); each turn of a page (30 ms), to one that was never seen with a script of
// 300 lines, half a second after the window came up, and to one that was with the long one; and the mark that follows a
// key on its way to a row (16 ms). Needs a display: run it by scripts/virtual_display.

#include <benchmark/benchmark.h>
#include <wx/app.h>
#include <wx/cshelp.h>
#include <wx/image.h>
#include <wx/timer.h>
#include <wx/uiaction.h>

#include <algorithm>
#include <map>
#include <string>

#include "bench/limit.h"
#include "bench/long_script.h"
#include "bench/paint_watch.h"
#include "catalogs/forms/entry_forms.h"
#include "foundation/forms/help_bubble.h"
#include "foundation/settings.h"
#include "foundry/editor/setup_foundry.h"
#include "foundry/forms/fig_form.h"
#include "foundry/forms/foundry_forms.h"
#include "foundry/forms/sf_splash_form.h"
#include "foundry/foundry.h"
#include "launcher/forms/lv_form.h"
#include "launcher/start/main_window_load.h"
#include "platform/linux/linux_clock.h"
#include "platform/memory/memory_platform.h"

namespace {

constexpr long kLines = 10000;
constexpr long kUsualLines = 300;
constexpr int kMoves = 40;
constexpr double kSplashMilliseconds = 1000;
constexpr int kQuietMilliseconds = 60;
constexpr int kLookMilliseconds = 500;  // from a window that has come up to a quick hand's first click in it

struct PlayedGame {
    const char* Name;
    lv::Game Kind;
    lv::Dialect Family;
    const char* Program;
    const char* Script;
};

// clang-format off
constexpr PlayedGame kGames[] = {
    {"Quake",    lv::Game::Quake,  lv::Dialect::Quake,  "C:\\QUAKE\\GLQUAKE.EXE",         "C:\\QUAKE\\ID1\\my.cfg"},
    {"Hexen II", lv::Game::Hexen2, lv::Dialect::Quake,  "C:\\HEXEN2\\GLH2.EXE",           "C:\\HEXEN2\\DATA1\\my.cfg"},
    {"Quake II", lv::Game::Quake2, lv::Dialect::Quake2, "C:\\QUAKE2\\QUAKE2.EXE",         "C:\\QUAKE2\\BASEQ2\\my.cfg"},
    {"Unreal",   lv::Game::Unreal, lv::Dialect::Unreal, "C:\\UNREAL\\SYSTEM\\UNREAL.EXE", "C:\\UNREAL\\SYSTEM\\unreal.ini"},
};
// clang-format on

void Rest(int milliseconds = kQuietMilliseconds) {
    const auto start = std::chrono::steady_clock::now();
    while (std::chrono::steady_clock::now() - start < std::chrono::milliseconds(milliseconds)) {
        wxEventLoopBase::GetActive()->YieldFor(wxEVT_CATEGORY_ALL);
        wxMilliSleep(1);
    }
}

/// Calls back as soon as the editor is seen.
class WhenSeen : public wxTimer {
  public:
    WhenSeen(const lv::PaintWatch& watch, std::function<void()> act) : watch_(watch), act_(std::move(act)) { Start(1); }
    void Notify() override {
        if (watch_.Seen()) {
            Stop();
            act_();
        }
    }

  private:
    const lv::PaintWatch& watch_;
    std::function<void()> act_;
};

/// The editor over the main window, as in the program.
class Bench {
  public:
    Bench(const PlayedGame& game, const std::string& script) {
        lv::Save(run_, "LV-Stuff", "FirstTime", 0);
        lv::Save(run_, "ShowMessage", "HL_Phun-Names", 0);
        user_.AddForms(lv::MakeEntryForm);
        user_.AddForms(lv::MakeFoundryForms(user_));
        lv::ConnectEditor(foundry_);
        system_.Disk.AddFile(game.Program);
        system_.Disk.AddFile(game.Script, script);
        lv::Save(run_, lv::kOptions, "Executables", std::string("The game;") + game.Program);
        main_ = new lv::LvForm(launcher_, user_);
        if (lv::LV_Frm_Load(launcher_)) {
            main_->Show();
        }
        launcher_.Window.Script_Cbo.Items = {std::string("my") + std::string(98, ' ') + game.Script};
        launcher_.Window.Script_Cbo.ListIndex = 0;
        run_.GameKind = game.Kind;
        run_.ScriptFamily = game.Family;
        run_.IsQuakeWorld = false;
        user_.Refresh();
        Rest();
    }
    ~Bench() {
        main_->Destroy();
        Rest();
    }
    Bench(const Bench&) = delete;
    Bench& operator=(const Bench&) = delete;

    /// Opens the editor, does the work, and closes it. The milliseconds to its first page; nothing if it did not come.
    std::optional<double> Edit(const std::function<void(lv::PaintWatch&, lv::FigForm&)>& work) {
        lv::PaintWatch watch;
        std::optional<double> opened;
        WhenSeen open(watch, [&] {
            opened = *watch.Seen() - kSplashMilliseconds;
            auto& form = dynamic_cast<lv::FigForm&>(*wxWindow::FindWindowByName("Fig_Frm"));
            Rest(kLookMilliseconds);
            work(watch, form);
            form.Model().Document.ScriptClean = true;
            form.Close();
        });
        watch.Start([](const wxWindow& window) {
            return window.GetParent() != nullptr && window.GetParent()->GetName() == "Options_Tab";
        });
        lv::SetupFoundry_Bar_Click(foundry_);
        return opened;
    }

  private:
    lv::MemoryPlatform system_;
    lv::LinuxClock clock_;  // the splash's second is a real one: the window is made in it
    lv::Platform services_{system_.Settings, system_.Registry, system_.Disk, system_.Programs,
                           system_.Clip,     clock_,           nullptr,      &system_.Windows};
    lv::WxUser user_{system_.Disk};
    lv::Run run_{services_, user_};
    lv::Launcher launcher_{run_};
    lv::SetupFoundry foundry_{launcher_};
    lv::SFSplashWindow splash_{foundry_, user_};
    lv::LvForm* main_ = nullptr;
};

void BM_ClickToEditor(benchmark::State& state) {
    const PlayedGame& game = kGames[state.range(0)];
    state.SetLabel(game.Name);
    Bench bench(game, lv::MixedScript(kLines));
    double total = 0;
    for (auto _ : state) {
        const auto took = bench.Edit([](lv::PaintWatch&, lv::FigForm&) {});
        if (!took) {
            state.SkipWithError("the editor did not come up");
            return;
        }
        state.SetIterationTime(*took / 1000);
        total += *took;
    }
    lv::SetLimit(state, total / static_cast<double>(state.iterations()), 150);
}

/// The time of a turn to each of the other pages, by the page's caption.
using Turns = std::map<std::string, double>;

void TurnAll(lv::PaintWatch& watch, const char* name, Turns& turns) {
    auto* tabs = dynamic_cast<wxNotebook*>(wxWindow::FindWindowByName(name));
    for (std::size_t tab = 1; tab <= tabs->GetPageCount(); ++tab) {
        const std::size_t page = tab % tabs->GetPageCount();
        const wxWindow* awaited = tabs->GetPage(page);
        watch.Start(
            [awaited](const wxWindow& window) { return &window == awaited || window.GetGrandParent() == awaited; });
        tabs->SetSelection(page);
        double& worst = turns[std::string(name, 1) + ":" + tabs->GetPageText(page).utf8_string()];
        worst = std::max(worst, watch.Wait().value_or(5000));
        Rest();
    }
}

void TurnAll(lv::PaintWatch& watch, Turns& turns) {
    TurnAll(watch, "Options_Tab", turns);
    TurnAll(watch, "Main_Tab", turns);
    dynamic_cast<wxNotebook*>(wxWindow::FindWindowByName("Main_Tab"))->SetSelection(1);
    Rest();
    TurnAll(watch, "Bindings_Tab", turns);
    dynamic_cast<wxNotebook*>(wxWindow::FindWindowByName("Main_Tab"))->SetSelection(0);
    Rest();
}

void MakeAllPages(lv::FigForm& form) {
    while (form.MakeSome()) {
    }
}

void BM_TurnPages(benchmark::State& state) {
    const PlayedGame& game = kGames[state.range(0)];
    const bool first = state.range(1) != 0;
    // The first look at the pages of a long script comes behind the idle moments in which they are made.
    Bench bench(game, lv::MixedScript(first ? kUsualLines : kLines));
    Turns turns;
    for (auto _ : state) {
        bench.Edit([&](lv::PaintWatch& watch, lv::FigForm& form) {
            if (!first) {
                MakeAllPages(form);
                Turns unmeasured;
                TurnAll(watch, unmeasured);
            }
            TurnAll(watch, turns);
        });
    }
    if (turns.empty()) {
        state.SkipWithError("the editor did not come up");
        return;
    }
    const auto worst = std::ranges::max_element(turns, {}, &Turns::value_type::second);
    state.SetLabel(std::string(game.Name) + (first ? ", first" : ", again") + ", slowest " + worst->first);
    lv::SetLimit(state, worst->second, 30);
    for (const auto& [page, milliseconds] : turns) {
        state.counters[page] = milliseconds;
    }
}

wxPoint MiddleOf(const char* name) {
    const wxRect place = wxWindow::FindWindowByName(name)->GetScreenRect();
    return place.GetTopLeft() + wxPoint(place.width / 2, place.height / 2);
}

void BM_DragOverRows(benchmark::State& state) {
    Bench bench(kGames[2], lv::MixedScript(kLines));
    double worst = 0;
    double total = 0;
    for (auto _ : state) {
        bench.Edit([&](lv::PaintWatch& watch, lv::FigForm& form) {
            MakeAllPages(form);
            dynamic_cast<wxNotebook*>(wxWindow::FindWindowByName("Main_Tab"))->SetSelection(1);
            Rest();
            wxUIActionSimulator hand;
            hand.MouseMove(MiddleOf("Key_Lbl(40)"));
            Rest();
            hand.MouseDown();
            Rest();
            for (int i = 0; i < kMoves; ++i) {
                watch.Start([](const wxWindow& window) { return window.GetName().StartsWith("Setting_Lbl("); },
                            wxEVT_MOTION);
                hand.MouseMove(MiddleOf(i % 2 == 0 ? "Setting_Lbl(102)" : "Setting_Lbl(205)"));
                const double took = watch.Wait().value_or(5000);
                worst = std::max(worst, took);
                total += took;
                Rest();
            }
            hand.MouseUp();
            Rest();
        });
    }
    lv::SetLimit(state, worst, 16);
    state.counters["mean"] = total / kMoves / static_cast<double>(state.iterations());
}

BENCHMARK(BM_ClickToEditor)->DenseRange(0, 3)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(5);
BENCHMARK(BM_TurnPages)->ArgsProduct({{0, 1, 2, 3}, {1, 0}})->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(BM_DragOverRows)->Unit(benchmark::kMillisecond)->Iterations(1);

class BenchApp : public wxApp {
  public:
    bool OnInit() override {
        wxImage::AddHandler(new wxPNGHandler);
        wxHelpProvider::Set(new lv::HelpBubbles);
        wxUpdateUIEvent::SetMode(wxUPDATE_UI_PROCESS_SPECIFIED);  // both as the program does
        wxIdleEvent::SetMode(wxIDLE_PROCESS_SPECIFIED);
        SetExitOnFrameDelete(false);
        CallAfter([this] {
            benchmark::RunSpecifiedBenchmarks();
            ExitMainLoop();
        });
        return true;
    }
};

}  // namespace

wxIMPLEMENT_APP_NO_MAIN(BenchApp);

int main(int count, char** arguments) {
    benchmark::Initialize(&count, arguments);
    return wxEntry(count, arguments);
}
