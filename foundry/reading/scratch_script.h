// foundry/reading/scratch_script.h
//
// A script read for comparison alone: nobody is asked or told, and nothing is written.

#pragma once

#include "foundation/run.h"
#include "foundry/document/script_document.h"

namespace lv {

/// The document that OpenScript would make of a file with these bytes.
ScriptDocument ReadScratch(Run& run, const ScriptDialect& dialect, TextView path, TextView bytes);

}  // namespace lv
