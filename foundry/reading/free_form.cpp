#include "foundry/reading/free_form.h"

#include <algorithm>
#include <utility>

namespace lv {

namespace {

constexpr TextView kOwnSection = "[lorvane 3d]";
constexpr TextView kInputSection = "[engine.input]";

// A text of this size grows by an eighth at a time, not by its double: a script may be as large as memory allows.
constexpr std::size_t kLargeText = 1 << 20;

void MakeRoom(Text& text, std::size_t needed) {
    if (needed <= text.capacity() || text.size() < kLargeText) {
        return;
    }
    Text roomy;
    roomy.reserve(std::max(needed, text.size() + text.size() / 8));
    roomy.append(text);
    text.swap(roomy);
}

}  // namespace

void AddFreeForm(Text& text, TextView line) {
    if (!text.empty()) {
        MakeRoom(text, text.size() + NewLine.size() + line.size());
        text.append(NewLine);
    }
    text.append(line);
}

void AddFreeForm(Text& text, Text&& line) {
    if (text.empty()) {
        text = std::move(line);
    } else {
        AddFreeForm(text, TextView(line));
    }
}

SectionReader::SectionReader(ScriptDocument& document) : document_(document) {
    document_.Sections.assign(1, {});
    document_.Section_Cbo.Clear();
}

void SectionReader::Open(TextView head) {
    own_ = SameText(head, kOwnSection);
    input_ = SameText(head, kInputSection);
    if (own_) {
        sawOwn_ = true;
        return;
    }
    if (document_.Sections.size() >= kMostSections) {
        AddFreeForm(Current(), head);
        return;
    }
    if (sawHead_) {
        document_.Sections.emplace_back();
    }
    sawHead_ = true;
    document_.Sections.back().Name = head;
    document_.Section_Cbo.Items.emplace_back(head);
}

Text& SectionReader::Current() {
    return document_.Sections.back().Text;
}

}  // namespace lv
