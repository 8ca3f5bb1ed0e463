// transfer/value_check.h
//
// Values that a start of the program could not get over, looked at before they are let in.

#pragma once

#include "foundation/text.h"
#include "platform/settings_backing.h"

namespace lv {

/// What is wrong with the value, in plain words; empty if nothing is. A list of the main window must have whole
/// records, those of a video profile must be pairs.
Text FaultOfValue(const StoredValue& value);

}  // namespace lv
