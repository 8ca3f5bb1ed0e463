#include "foundry/writing/compose_script.h"

#include "foundation/game.h"
#include "foundry/writing/console_layout.h"
#include "foundry/writing/unreal_layout.h"

namespace lv {

Text ComposeScript(const ScriptDocument& document, const LocalTime& date) {
    return document.Dialect.GameKind == Game::Unreal ? UnrealIni(document, date) : ConsoleScript(document, date);
}

}  // namespace lv
