// foundation/device_names.h
//
// Names that no file can have on Windows.

#pragma once

#include "foundation/text.h"

namespace lv {

/// Whether Windows takes a file or a directory of that name for a device, "con", "LPT1", whatever ending it has and in
/// whatever directory it is.
bool IsDeviceName(TextView name);

}  // namespace lv
