// foundry/document/script_messages.h
//
// What reading and saving scripts say alike.

#pragma once

#include <cstdint>
#include <memory>

#include "foundation/run.h"

namespace lv {

/// The script to be read; nothing if it can't be opened, which the user was told then.
std::unique_ptr<RandomAccessFile> OpenScriptFile(Run& run, TextView path);
/// If it has no more than `most` bytes.
std::unique_ptr<RandomAccessFile> OpenScriptFile(Run& run, TextView path, std::uint64_t most);

/// What the editor's window is called: "Setup Foundry - [c:/quake/id1/my.cfg]".
Text EditorCaption(TextView scriptPath);

}  // namespace lv
