#include "platform/toolkit/list_cursor.h"

namespace lv {

// The system's lists go on from their selection.
void PutListCursor(void*, int) {}

}  // namespace lv
