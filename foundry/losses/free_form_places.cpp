#include "foundry/losses/free_form_places.h"

#include <algorithm>
#include <unordered_map>

#include "console/text_difference.h"
#include "foundation/field_strings.h"
#include "foundry/reading/script_lines.h"

namespace lv {

namespace {

constexpr char kHardBlank = '\xA0';
constexpr TextView kComment = "//";

/// A line as the reader keeps it: without a comment behind it.
Text AsKept(TextView line) {
    line = TrimmedView(line, kScriptBlanks);
    const std::size_t comment = line.find(kComment);
    Text kept(comment == 0 ? line : TrimmedView(line.substr(0, comment), kScriptBlanks));
    std::ranges::replace(kept, kHardBlank, ' ');
    return Text(TrimmedView(kept, kScriptBlanks));
}

/// The file's lines by their text, each with its numbers from 1, ascending.
std::unordered_map<Text, std::vector<std::size_t>> PlacesOf(TextView file) {
    std::unordered_map<Text, std::vector<std::size_t>> places;
    const std::vector<TextView> lines = LinesOf(file);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        places[AsKept(lines[i])].push_back(i + 1);
    }
    return places;
}

}  // namespace

FreeFormPlaces::FreeFormPlaces(TextView freeForm, TextView file) {
    const auto places = PlacesOf(file);
    std::size_t fileLine = 0;
    for (const TextView line : LinesOf(freeForm)) {
        const auto found = places.find(AsKept(line));
        if (found != places.end()) {
            const auto place = std::ranges::upper_bound(found->second, fileLine);
            fileLine = place == found->second.end() ? fileLine : *place;
        }
        lines_.push_back({Text(line), fileLine});
    }
}

void FreeFormPlaces::Insert(TextView line, std::size_t fileLine) {
    lines_.push_back({Text(line), fileLine});
}

Text FreeFormPlaces::Joined() {
    std::ranges::stable_sort(lines_, {}, &PlacedLine::FileLine);
    Text text;
    for (const PlacedLine& each : lines_) {
        text.append(&each == lines_.data() ? TextView() : NewLine).append(each.Line);
    }
    return text;
}

}  // namespace lv
