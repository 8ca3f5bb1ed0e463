// foundry/reading/open_script.h
//
// Opens a script in the editor.

#pragma once

#include "foundation/run.h"
#include "foundry/document/script_document.h"
#include "foundry/document/script_view.h"

namespace lv {

/// The dialect of the game that is selected on the main window.
ScriptDialect DialectOfRun(const Run& run);

/// Makes all tables of the document anew, and reads the file at `path` into them. A file that this program has not
/// written before gets a copy beside it; where that fails, the document's BackupDue says so. False if the file cannot
/// be opened, which the user was told, or is a large one that the user does not want to wait for; the tables are as
/// good as new then.
bool OpenScript(Run& run, ScriptDocument& document, ScriptView& view, TextView path);

/// The same for a script that is read from another file than its own.
bool OpenScriptFrom(Run& run, ScriptDocument& document, ScriptView& view, TextView path, TextView source);

}  // namespace lv
