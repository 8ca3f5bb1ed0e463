#include "foundry/losses/free_form_places.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <utility>

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

FreeFormPlaces::FreeFormPlaces(TextView freeForm, TextView file) : original_(freeForm) {
    const auto places = PlacesOf(file);
    std::size_t fileLine = kAheadOfAll;
    for (const TextView line : LinesOf(freeForm)) {
        const auto found = places.find(AsKept(line));
        bool isOfFile = false;
        if (found != places.end()) {
            const auto place = std::ranges::upper_bound(found->second, fileLine);
            isOfFile = place != found->second.end();
            fileLine = isOfFile ? *place : fileLine;
        }
        lines_.push_back({.Line = Text(line), .FileLine = fileLine, .IsOfFile = isOfFile});
    }
}

void FreeFormPlaces::Insert(TextView line, std::size_t fileLine) {
    const auto place = std::ranges::upper_bound(lines_, fileLine, {}, &PlacedLine::FileLine);
    lines_.insert(place, {.Line = Text(line), .FileLine = fileLine, .IsInserted = true});
}

void FreeFormPlaces::Hide(std::size_t fileLine) {
    for (PlacedLine& each : lines_) {
        each.IsHidden = each.IsHidden || (each.IsOfFile && each.FileLine == fileLine);
    }
}

void FreeFormPlaces::TakeBack(TextView line, std::size_t fileLine) {
    const auto found = std::find_if(lines_.rbegin(), lines_.rend(),
                                    [line](const PlacedLine& each) { return each.IsInserted && each.Line == line; });
    if (found == lines_.rend()) {
        return;
    }
    lines_.erase(std::next(found).base());
    for (PlacedLine& each : lines_) {
        each.IsHidden = each.IsHidden && each.FileLine != fileLine;
    }
}

Text FreeFormPlaces::Joined() const {
    const bool isTouched =
        std::ranges::any_of(lines_, [](const PlacedLine& each) { return each.IsInserted || each.IsHidden; });
    if (!isTouched) {
        return original_;
    }
    Text text;
    bool isFirst = true;
    for (const PlacedLine& each : lines_) {
        if (!each.IsHidden) {
            text.append(std::exchange(isFirst, false) ? TextView() : NewLine).append(each.Line);
        }
    }
    return text;
}

}  // namespace lv
