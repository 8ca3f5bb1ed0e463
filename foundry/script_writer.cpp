#include "foundry/script_writer.h"

#include <algorithm>

#include "launcher/game_numbers.h"

namespace lv {

Text ComposeScript(const ScriptDocument& document, const LocalTime& date) {
    return document.Dialect.GameKind == game_kind::kUnreal ? UnrealIni(document, date) : ConsoleScript(document, date);
}

Text ValueText(const ListBox& list, const ScriptDialect& dialect) {
    Text text = list.Selected();
    std::replace(text.begin(), text.end(), dialect.DecimalSeparator, '.');
    return text;
}

}  // namespace lv
