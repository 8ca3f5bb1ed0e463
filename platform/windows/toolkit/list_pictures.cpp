#include "platform/toolkit/list_pictures.h"

namespace lv {

// The layout's pixels are the screen's.
void FitListPictures(void*, int) {}

}  // namespace lv
