// foundation/path_fault.h
//
// What the user is told of a file that the program could not get at.

#pragma once

#include "foundation/text.h"
#include "platform/files.h"

namespace lv {

/// The error with the path of the file behind its text, where it is not there or access was refused (53, 70, 75): only
/// that says what is to be mended. A directory of that name is told as such. Any other error stays as it is, and so
/// does one that names the path already.
Error FaultAt(Files& disk, TextView path, Error failed);

}  // namespace lv
