#include "foundry/writing/value_text.h"

#include <algorithm>

namespace lv {

Text ValueText(const ListBox& list, const ScriptDialect& dialect) {
    Text text = list.Selected();
    std::replace(text.begin(), text.end(), dialect.DecimalSeparator, '.');
    return text;
}

}  // namespace lv
