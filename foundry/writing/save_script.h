// foundry/writing/save_script.h
//
// Saving the editor's script: under its name or another one, with what the user is asked and told on the way.

#pragma once

#include "catalogs/catalog_lists.h"
#include "foundry/document/script_document.h"
#include "foundry/document/script_view.h"

namespace lv {

enum class SaveName {
    Same,      // CurrentScriptPath
    AskForIt,  // the user chooses the file
};

struct SaveManner {
    SaveName Name = SaveName::Same;
    bool Quiet = false;        // success is not told: the program saves by itself
    bool Diagnostics = false;  // tells how long a path the dialog may give
};

/// Writes the script, in one step, unless it leads somewhere by a link where the user wants nothing changed, or is a
/// foreign one of which no copy can be kept: after a failure the old file is there whole and the document is as it was.
/// What the file held is kept as a version.
/// After success the document is clean, has the file's path, and the file stands in the catalog of scripts; a key bound
/// to the empty command was written so and is free now, which the view is told. True if the file was written.
bool SaveScript(Run& run, CatalogLists& lists, ScriptDocument& document, ScriptView& view,
                const SaveManner& manner = {});

}  // namespace lv
