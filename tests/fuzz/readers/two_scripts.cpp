// The first byte chooses the console. A script, a character 0, another script.

#include <string>

#include "console/script_comparison.h"
#include "console/text_difference.h"
#include "foundry/losses/keep_plan.h"
#include "foundry/writing/compose_script.h"
#include "tests/foundry/reading.h"
#include "tests/fuzz/readers.h"

namespace {

/// What scripts for the console are edited as.
lv::ScriptDialect DialectOfConsole(lv::Console console) {
    switch (console) {
        case lv::Console::Hexen2:
        case lv::Console::HexenWorld:
            return lv::DialectOf(lv::Game::Hexen2);
        case lv::Console::Unreal:
            return lv::DialectOf(lv::Game::Unreal);
        case lv::Console::HalfLife:
            return lv::DialectOf(lv::Game::HalfLife);
        case lv::Console::Quake2:
        case lv::Console::Yamagi:
        case lv::Console::Q2Pro:
            return lv::DialectOf(lv::Game::Quake2);
        default:
            return lv::DialectOf(lv::Game::Quake);
    }
}

void CheckRows(lv::TextView left, lv::TextView right) {
    std::size_t leftLine = 0;
    std::size_t rightLine = 0;
    for (const lv::DifferenceRow& row : lv::CompareTexts(left, right)) {
        lv::MustHold(row.LeftLine == 0 || row.LeftLine == ++leftLine,
                     "each line of the left side comes once, in order");
        lv::MustHold(row.RightLine == 0 || row.RightLine == ++rightLine, "each line of the right side does");
        lv::MustHold(
            (row.Kind == lv::RowKind::Same) == (row.LeftLine > 0 && row.RightLine > 0 && row.Left == row.Right),
            "what is called the same is the same");
    }
    lv::MustHold(leftLine == lv::LinesOf(left).size(), "no line of the left side is left out");
    lv::MustHold(rightLine == lv::LinesOf(right).size(), "nor one of the right side");
}

}  // namespace

namespace lv {

void FuzzTwoScripts(TextView input) {
    const auto console = static_cast<Console>(TakeChoice(input, AllConsoles().size()));
    const TextView left = TakePart(input);
    const TextView right = TakePart(input);
    CheckRows(left, right);
    const ScriptEffects effects = EffectsOf(left, console);
    MustHold(CompareScripts(effects, effects).empty(), "a script does what it does itself");
    const std::size_t there = CompareScripts(effects, EffectsOf(right, console)).size();
    const std::size_t back = CompareScripts(EffectsOf(right, console), effects).size();
    MustHold((there == 0) == (back == 0), "two scripts differ from either side");

    const ScriptDialect dialect = DialectOfConsole(console);
    ScriptDocument document = ReadScript(dialect, left);
    const LocalTime day = {1999, 11, 21, 12, 30, 0};
    const Text written = ComposeScript(document, day);
    const SaveReport report = ReportSave({left, written}, {}, dialect, console);
    const auto resave = [&](TextView script) { return ComposeScript(ReadScript(dialect, script), day); };
    document.Sections = PlanKeeping(document, left, {}, resave, day, console).Sections;
    const Text kept = ComposeScript(document, day);
    const ScriptDocument again = ReadScript(dialect, kept);
    MustHold(!PlanKeeping(again, kept, {}, resave, day, console).Keeps, "what is kept once is kept for good");
    MustHold(report.Losses.size() <= left.size() + written.size(), "no more is told of than there is");
}

}  // namespace lv
