#include "transfer/import_words.h"

#include <algorithm>

namespace lv {

Text ChangedText(std::size_t changed) {
    return changed == 1 ? Text("1 setting is another now.")
                        : Join(std::to_string(changed), " settings are others now.");
}

std::vector<Text> FirstFew(const std::vector<Text>& names) {
    std::vector<Text> few(names.begin(),
                          names.begin() + static_cast<std::ptrdiff_t>(std::min(names.size(), kMostNamed)));
    if (names.size() > kMostNamed) {
        few.push_back(Join("and ", std::to_string(names.size() - kMostNamed), " more"));
    }
    return few;
}

}  // namespace lv
