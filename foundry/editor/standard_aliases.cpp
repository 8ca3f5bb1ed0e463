#include "foundry/editor/standard_aliases.h"

#include "catalogs/scripts.h"
#include "foundation/error_lines.h"
#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "foundation/link_question.h"
#include "foundation/path_fault.h"
#include "foundation/question_box.h"
#include "foundry/writing/banners.h"
#include "foundry/writing/value_text.h"

namespace lv {

namespace {

constexpr std::size_t kNameScroll = 1;
constexpr std::size_t kNameWidth = 15;
constexpr TextView kUsualPitchSpeed = "100";
constexpr TextView kScrollFile = "nsrl_666.qs";

struct StandardAlias {
    TextView Title;
    TextView Name;
    TextView Body;  // "%" stands for kScrollFile
};

// clang-format off
constexpr StandardAlias kStandardAliases[] = {
    {" 1. Rocket Jump", "rl_jump_1", "cl_pitchspeed 32000;+lookdown;impulse 7;wait;wait;wait;wait;wait;wait;wait;wait;wait;wait;+jump;wait;wait;wait;+attack;wait;wait;wait;-lookdown;-attack;cl_pitchspeed "},
    {" 2. Name Scroll", "n_scroll_1", "exec %;exec %;exec %;exec %"},
};
// clang-format on

// The banners of old, which readers of scripts know as well.
constexpr TextView kOldEdge = "/////////////////////";
constexpr TextView kOldGap = "//                 //";

void AddOldBanner(Text& script, TextView line) {
    for (const TextView text : {kOldEdge, kOldGap, line, kOldGap, kOldEdge}) {
        AddLine(script, text);
    }
}

void AddOldHeader(Text& script, const LocalTime& date) {
    const Text dateLine = Join("// ", ScriptDate(date), "      //");
    for (const TextView text :
         {kOldEdge, kOldGap, TextView("// Setup Foundry   //"), kOldGap, TextView(dateLine), kOldGap, kOldEdge}) {
        AddLine(script, text);
    }
}

/// The name, turned round by a letter at a time until it stands as it was.
Text NameScrollScript(TextView name, const LocalTime& date) {
    Text script(NewLine);
    AddOldHeader(script, date);
    AddLine(script);
    AddOldBanner(script, "// Name Scroll     //");
    AddLine(script);
    const Text padded = PadToWidth(name, kNameWidth);
    for (std::size_t i = 1; i <= kNameWidth; ++i) {
        AddLine(script, "name \"", padded.substr(i), padded.substr(0, i), DoubleQuote);
        AddLine(script, "wait;wait;wait;wait;wait");
    }
    AddLine(script, "name \"", Trim(name), DoubleQuote);
    return script;
}

}  // namespace

void FillStandardAliases(Fig_Frm& form) {
    form.StdAliases_Cbo.Clear();
    if (form.GameKind() == Game::Quake) {
        for (const StandardAlias& alias : kStandardAliases) {
            form.StdAliases_Cbo.Items.emplace_back(alias.Title);
        }
    }
}

Text StandardAliasName(std::size_t entry) {
    return entry < std::size(kStandardAliases) ? Text(kStandardAliases[entry].Name) : Text();
}

Text StandardAliasBody(const ScriptDocument& document, std::size_t entry) {
    if (entry >= std::size(kStandardAliases)) {
        return {};
    }
    const TextView body = kStandardAliases[entry].Body;
    if (entry == kNameScroll) {
        return ReplaceText(body, "%", kScrollFile);
    }
    const ListBox& pitchSpeed = document.cl_pitchspeed_Cbo;
    return Join(body, pitchSpeed.HasSelection() ? ValueText(pitchSpeed, document.Dialect) : Text(kUsualPitchSpeed));
}

bool WriteStandardAliasFiles(Fig_Frm& form, std::size_t entry) {
    if (entry != kNameScroll) {
        return true;
    }
    Run& run = form.run;
    const Text directory = ScriptDirectory(run);
    const Text path = PathBelow(directory, kScrollFile);
    const Text script = NameScrollScript(form.Document.Name_Txt.Text, run.System.Time.Now());
    if (!MayPutOwnFile(run, path, GameTreeOf(run, path))) {
        return false;
    }
    if (const Error failed = run.System.Disk.ReplaceOwn(path, script)) {
        AskUser(run, "Error Writing to File",
                Join("The alias was not created.", NewLine, Blank, ErrorLines(FaultAt(run.System.Disk, path, failed))));
        return false;
    }
    return true;
}

}  // namespace lv
