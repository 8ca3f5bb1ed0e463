// catalogs/image_keys.h
//
// The picture of an executable in the list, told by its file name.

#pragma once

#include "foundation/text.h"

namespace lv {

/// The key into the image list for a file name without its directory, in any letter case; "QUESTION" for one that is
/// not known.
Text ImageKeyOf(TextView fileName);

}  // namespace lv
