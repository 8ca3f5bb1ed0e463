#include "foundry/look/file_order_frm.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundry/look/script_text_frm.h"

namespace lv {

namespace {

constexpr std::size_t kMostRows = 20'000;  // of a list: nobody reads more

struct FateRow {
    ScriptFate Fate;
    TextView Words;
};

constexpr FateRow kFates[] = {
    {ScriptFate::StoodIn, "not found; the game's own one is taken to say as usual"},
    {ScriptFate::Missing, "NOT THERE"},
    {ScriptFate::Loop, "A LOOP: it is being run already"},
    {ScriptFate::TooDeep, "NOT RUN: too many stand in each other"},
    {ScriptFate::TooLong, "NOT RUN: too long for the game, which drops it whole"},
    {ScriptFate::Unread, "could not be read"},
    {ScriptFate::Refused, "NOT RUN: exec takes one name"},
    {ScriptFate::IsPattern, "several at once, which are not looked for"},
};

Text RowOfScript(const RunScript& script, const StartRequest& request) {
    constexpr std::size_t kIndent = 4;
    Text row = Join(Text(script.Depth * kIndent, ' '), script.Name);
    if (const Text place = PlaceOfRunScript(script, request); !place.empty()) {
        row += Join("   ", place);
    }
    const TextView fate = FateText(script);
    return fate.empty() ? row : Join(row, "   (", fate, ")");
}

TextView KindText(EffectKind kind) {
    switch (kind) {
        case EffectKind::Bind:
            return "key";
        case EffectKind::Alias:
            return "alias";
        default:
            return "setting";
    }
}

Text NameOfScript(const FileOrder_Frm& form, std::size_t script) {
    return script < form.Start.Scripts.size() ? form.Start.Scripts[script].Name : Text("the game");
}

Text Where(const FileOrder_Frm& form, const Setter& setter) {
    return Join(NameOfScript(form, setter.Script), ", line ", std::to_string(setter.Line),
                setter.Alias.empty() ? Text() : Join(", by the alias ", setter.Alias));
}

Text ValueText(const Setter& setter) {
    return setter.IsSet ? Join(DoubleQuote, setter.Value, DoubleQuote) : Text("nothing");
}

const SetThing* SelectedThing(const FileOrder_Frm& form) {
    return form.Set_Lst.HasSelection()
               ? &form.Start.Set.All()[form.Things[static_cast<std::size_t>(form.Set_Lst.ListIndex)]]
               : nullptr;
}

Text SettersText(const SetThing& thing) {
    const std::size_t overridden = thing.Setters.size() - 1;
    if (overridden == 0) {
        return Join("Nobody else sets the ", KindText(thing.Kind), Blank, thing.Name, ":");
    }
    return Join("The last one wins. It overrides ", std::to_string(overridden),
                overridden == 1 ? " other:" : " others:");
}

void ShowScript(FileOrder_Frm& form, std::size_t script, std::size_t line) {
    if (script < form.Start.Scripts.size()) {
        ShowScriptText(form.run, form.Request, form.Start.Scripts[script], line);
    }
}

}  // namespace

TextView FateText(const RunScript& script) {
    if (script.Fate == ScriptFate::Missing && script.MayLack) {
        return "not there, and not missed";
    }
    const auto* const row = std::ranges::find(kFates, script.Fate, &FateRow::Fate);
    return row == std::end(kFates) ? TextView() : row->Words;
}

FileOrder_Frm::FileOrder_Frm(Run& owner, const StartRequest& request, TextView note)
    : ModalWindow(owner, "FileOrder_Frm"), Request(request), Start(RunStart(owner.System.Disk, request)) {
    Caption = "Which File Wins";
    Note_Lbl.Caption = note;
    Note_Lbl.Visible = !note.empty();
    Files_Lbl.Caption = "The game executes these scripts when it starts, from top to bottom:";
    for (const RunScript& script : Start.Scripts) {
        Files_Lst.Items.push_back(RowOfScript(script, request));
    }
    if (Start.IsCutOff) {
        Files_Lst.Items.emplace_back("(and more than any game runs)");
    }
    Wanted_Lbl.Caption = "&Find a key, an alias or a setting:";
    Show_Cmd.Caption = "&Show the Line";
    Show_Cmd.ToolTip = "Show the script that was clicked on, at the line that sets this";
    Close_Cmd.Caption = "&Close";
    Focus = "Wanted_Txt";
    FileOrder_Wanted_Txt_Change(*this);
}

void FileOrder_Wanted_Txt_Change(FileOrder_Frm& form) {
    const Text wanted = LowerCase(Trim(form.Wanted_Txt.Text));
    form.Set_Lst.Clear();
    form.Things.clear();
    const std::vector<SetThing>& all = form.Start.Set.All();
    for (std::size_t i = 0; i < all.size() && form.Things.size() < kMostRows; ++i) {
        if (Holds(LowerCase(all[i].Name), wanted)) {
            const Setter& last = all[i].Setters.back();
            form.Things.push_back(i);
            form.Set_Lst.Items.push_back(
                Join(KindText(all[i].Kind), Blank, all[i].Name, "   ", ValueText(last), "   ", Where(form, last)));
        }
    }
    form.Set_Lst.ListIndex = form.Things.empty() ? -1 : 0;
    FileOrder_Set_Lst_Click(form);
}

void FileOrder_Files_Lst_Click(FileOrder_Frm& form) {
    form.Setters_Lst.ListIndex = -1;
    form.Show_Cmd.Enabled = form.Files_Lst.HasSelection();
}

void FileOrder_Set_Lst_Click(FileOrder_Frm& form) {
    form.Setters_Lst.Clear();
    const SetThing* const thing = SelectedThing(form);
    form.Setters_Lbl.Caption = thing != nullptr ? SettersText(*thing) : Text("Nothing of that name is set.");
    if (thing != nullptr) {
        for (const Setter& setter : thing->Setters) {
            form.Setters_Lst.Items.push_back(Join(Where(form, setter), "   ", Trim(setter.Source)));
        }
        form.Setters_Lst.ListIndex = static_cast<int>(form.Setters_Lst.Items.size()) - 1;
    }
    form.Files_Lst.ListIndex = -1;
    form.Show_Cmd.Enabled = thing != nullptr;
}

void FileOrder_Setters_Lst_Click(FileOrder_Frm& form) {
    form.Files_Lst.ListIndex = -1;
    form.Show_Cmd.Enabled = form.Setters_Lst.HasSelection();
}

void FileOrder_Show_Cmd_Click(FileOrder_Frm& form) {
    if (form.Files_Lst.HasSelection()) {
        ShowScript(form, static_cast<std::size_t>(form.Files_Lst.ListIndex), 1);
        return;
    }
    const SetThing* const thing = SelectedThing(form);
    if (thing != nullptr && form.Setters_Lst.HasSelection()) {
        const Setter& setter = thing->Setters[static_cast<std::size_t>(form.Setters_Lst.ListIndex)];
        ShowScript(form, setter.Script, setter.Line);
    }
}

void FileOrder_Close_Cmd_Click(FileOrder_Frm& form) {
    form.Closed = true;
}

}  // namespace lv
