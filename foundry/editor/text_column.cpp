#include "foundry/editor/text_column.h"

#include <algorithm>

namespace lv {

namespace {
constexpr int kTabLetters = 8;
constexpr std::size_t kMostMeasured = 256;  // characters; no column is that wide
}  // namespace

int TabWidth(UserInterface& user) {
    return kTabLetters * user.TextWidth("n");
}

TextColumn::TextColumn(UserInterface& user, int width)
    : user_(user), width_(width), blank_(std::max(1, user.TextWidth(Blank))) {}

Text TextColumn::Padded(TextView text) const {
    const int missing = std::max(0, width_ - user_.TextWidth(text.substr(0, kMostMeasured)));
    Text padded(text);
    return padded.append(static_cast<std::size_t>((missing + blank_ - 1) / blank_), ' ');
}

}  // namespace lv
