#include "wizard/engine_advice.h"

#include <algorithm>

#include "catalogs/catalog_store.h"
#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "games/programs.h"
#include "wizard/install_frm.h"

namespace lv {

namespace {

constexpr TextView kSection = "Engines";
constexpr TextView kAdvised = "Advised";  // a ";"-list of directories, those told of last at its end
constexpr std::size_t kMostAdvised = 30;

std::vector<Text> ToldOf(Run& run) {
    std::vector<Text> told = SplitFields(GetSetting(run, run.AppName, kSection, kAdvised));
    std::erase_if(told, [](const Text& path) { return path.empty(); });
    return told;
}

void KeepToldOf(Run& run, const std::vector<Text>& told) {
    Text list;
    for (std::size_t i = told.size() - std::min(kMostAdvised, told.size()); i < told.size(); ++i) {
        AppendRecord(list, told[i]);
    }
    if (list != GetSetting(run, run.AppName, kSection, kAdvised)) {
        Save(run, kSection, kAdvised, list);
    }
}

/// For a game that no engine of today plays.
void AskForOwnProgram(Run& run, std::size_t row, TextView path) {
    const Text name = InstallRows()[row].Name;
    AskUser(run, "Nothing Here to Play It With",
            Join(name, " lies in", NewLine, NewLine, TabChar, path, NewLine, NewLine, "but its program ",
                 SearchedProgram(row), " does not, and no engine of today plays ", name, ".",
                 run.System.Disk.StandIn("", "") ? " That program runs through Wine." : "",
                 " Put it there, or press Browse in the row of ", name, " and show the directory that it lies in."));
}

}  // namespace

void AdviseOnce(Run& run, const EngineTable& engines, const std::vector<SetUpTree>& trees, bool all) {
    std::vector<Text> told = ToldOf(run);
    for (const SetUpTree& tree : trees) {
        const bool wasTold = std::erase(told, tree.Path) != 0;
        if (tree.IsPlayed) {
            continue;
        }
        if (all || tree.IsAskedFor || !wasTold) {
            AdviseEngine(run, engines, tree.Row, tree.Path);
        }
        if (FitsAField(tree.Path)) {
            told.push_back(tree.Path);
        }
    }
    KeepToldOf(run, told);
}

void AdviseEngine(Run& run, const EngineTable& engines, std::size_t row, TextView path) {
    // A system whose engines play from the game's directory alone is Windows, which has no packages.
    const auto advice = AdviceFor(engines, row, run.System.Disk.StandIn("", ""));
    if (!advice) {
        AskForOwnProgram(run, row, path);
        return;
    }
    const int answer = AskUser(run, "Nothing Here to Play It With",
                               Join(InstallRows()[row].Name, " lies in", NewLine, NewLine, TabChar, path, NewLine,
                                    NewLine, "but there is no program here that plays it. ",
                                    advice->IsCommand ? "In a terminal," : Join(advice->Engine, " does:"), NewLine,
                                    NewLine, TabChar, advice->What, NewLine, NewLine,
                                    advice->IsCommand ? Join("installs ", advice->Engine, ", which does. ") : Text(),
                                    advice->Part.empty() ? Text()
                                                         : Join("It is in Debian's \"", advice->Part,
                                                                "\", which must stand among apt's sources. "),
                                    "Afterwards press OK once more, or call the setup again (Tools, Set Up Games)."),
                               "&OK,&Copy");
    if (answer == 1) {
        (void)run.System.Clip.SetText(advice->What);
    }
}

}  // namespace lv
