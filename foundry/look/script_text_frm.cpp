#include "foundry/look/script_text_frm.h"

#include <algorithm>

#include "catalogs/archive_entries.h"
#include "console/text_difference.h"
#include "foundation/bounded_file.h"
#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundry/look/difference_list.h"

namespace lv {

namespace {

constexpr std::size_t kMostLines = 100'000;
constexpr std::size_t kNumberWidth = 6;

Text RowOfLine(std::size_t number, TextView line) {
    const Text digits = std::to_string(number);
    return Join(Text(kNumberWidth - std::min(digits.size(), kNumberWidth), ' '), digits, "  ", ShownLine(line));
}

const GivenScript* GivenInPlaceOf(const RunScript& script, const StartRequest& request) {
    const auto given =
        std::ranges::find_if(request.Given, [&](const GivenScript& each) { return SameText(each.Path, script.Path); });
    return given != request.Given.end() ? &*given : nullptr;
}

Result<Text> TextInArchive(Files& disk, const RunScript& script) {
    const auto archive = disk.Open(script.Path);
    if (!archive.Ok()) {
        return archive.Fault;
    }
    const auto entries = ReadArchiveEntries(*archive.Value);
    if (entries) {
        for (const ArchiveEntry& entry : *entries) {
            if (SameText(entry.Name, script.Inner)) {
                auto text = ReadArchiveEntry(*archive.Value, entry, kLargestRunScript);
                return text ? Result<Text>(*std::move(text)) : MakeError(error::kPathFileAccess, script.Path);
            }
        }
    }
    return MakeError(error::kFileNotFound, script.Inner);
}

}  // namespace

ScriptText_Frm::ScriptText_Frm(Run& owner, TextView place, TextView text, std::size_t line)
    : ModalWindow(owner, "ScriptText_Frm") {
    Caption = "The Script";
    Place_Lbl.Caption = place;
    const std::vector<TextView> lines = LinesOf(text);
    for (std::size_t i = 0; i < std::min(lines.size(), kMostLines); ++i) {
        Lines_Lst.Items.push_back(RowOfLine(i + 1, lines[i]));
    }
    const std::size_t row = line == 0 ? 0 : line - 1;
    Lines_Lst.ListIndex = row < Lines_Lst.Items.size() ? static_cast<int>(row) : -1;
    Close_Cmd.Caption = "&Close";
    Focus = "Lines_Lst";
}

void ScriptText_Close_Cmd_Click(ScriptText_Frm& form) {
    form.Closed = true;
}

Text PlaceOfRunScript(const RunScript& script, const StartRequest& request) {
    if (!script.Inner.empty()) {
        return Join(script.Path, " > ", script.Inner);
    }
    const GivenScript* const given = GivenInPlaceOf(script, request);
    return given != nullptr && given->IsPlanned ? Join(script.Path, "   (as a launch would write it now)")
                                                : script.Path;
}

void ShowScriptText(Run& run, const StartRequest& request, const RunScript& script, std::size_t line) {
    const Result<Text> text = script.Path.empty() ? Result<Text>(MakeError(error::kFileNotFound, script.Name))
                                                  : TextOfRunScript(run.System.Disk, request, script);
    if (!text.Ok()) {
        AskUser(run, "The Script", Join("There is no text to be shown.", NewLine, NewLine, text.Fault.Text));
        return;
    }
    ScriptText_Frm window(run, PlaceOfRunScript(script, request), text.Value, line);
    ShowModal(window);
}

Result<Text> TextOfRunScript(Files& disk, const StartRequest& request, const RunScript& script) {
    if (const GivenScript* const given = GivenInPlaceOf(script, request)) {
        return given->Content;
    }
    return script.Inner.empty() ? ReadBounded(disk, script.Path, kLargestRunScript) : TextInArchive(disk, script);
}

}  // namespace lv
