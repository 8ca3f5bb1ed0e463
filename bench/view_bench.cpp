// bench/view_bench.cpp
//
// View All with 1,000 rows, from the call to the box on the screen (limit 200 ms). Needs a display: run it by
// scripts/virtual_display.

#include <benchmark/benchmark.h>
#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/image.h>
#include <wx/timer.h>

#include <chrono>

#include "bench/limit.h"
#include "catalogs/editors/view_all.h"
#include "foundation/forms/wx_user.h"
#include "foundation/padded_item.h"
#include "launcher/launcher.h"
#include "platform/memory/memory_platform.h"

namespace {

constexpr int kRows = 1000;

/// Ends the box as soon as it has the screen, and notes when that was.
class Watcher : public wxTimer {
  public:
    Watcher() { Start(1); }
    void Notify() override {
        for (wxWindow* window : wxTopLevelWindows) {
            auto* box = dynamic_cast<wxDialog*>(window);
            if (box != nullptr && box->IsModal() && box->IsShownOnScreen()) {
                Seen = std::chrono::steady_clock::now();
                box->EndModal(0);
                return;
            }
        }
    }
    std::chrono::steady_clock::time_point Seen;
};

void BM_ViewAllWithAThousandRows(benchmark::State& state) {
    lv::MemoryPlatform memory;
    lv::WxUser user(memory.Disk);
    lv::Run run(memory.Services, user);
    lv::Launcher launcher(run);
    for (int i = 0; i < kRows; ++i) {
        const std::string number = std::to_string(i);
        launcher.Window.Game_Cbo.Items.push_back(
            lv::MakeItem(lv::Text(static_cast<std::size_t>(5 + i % 40), 'a') + number, "-game mod" + number));
    }
    double seconds = 0;
    for (auto _ : state) {
        Watcher watcher;
        const auto start = std::chrono::steady_clock::now();
        lv::ViewAllGames(run, launcher.Lists);
        const double took = std::chrono::duration<double>(watcher.Seen - start).count();
        state.SetIterationTime(took);
        seconds += took;
    }
    lv::SetLimit(state, seconds * 1000 / static_cast<double>(state.iterations()), 200);
}

BENCHMARK(BM_ViewAllWithAThousandRows)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(5);

class BenchApp : public wxApp {
  public:
    bool OnInit() override {
        wxImage::AddHandler(new wxPNGHandler);
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
