#include "foundry/document/script_document.h"

#include "foundry/document/written_commands.h"
#include "foundry/tables/page_lists.h"
#include "foundry/tables/setting_lists.h"

namespace lv {

ScriptDocument MakeScriptDocument(const ScriptDialect& dialect) {
    ScriptDocument document;
    document.Dialect = dialect;
    FillSettingLists(document, dialect.DecimalSeparator);
    FillPageLists(document, dialect.GameKind, dialect.ScriptFamily, dialect.IsMissionPack);
    document.KeyCaption = KeyCaptions(dialect.GameKind);
    FillCommandTable(document, dialect.GameKind);
    return document;
}

}  // namespace lv
