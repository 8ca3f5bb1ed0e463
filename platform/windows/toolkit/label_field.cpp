#include "platform/toolkit/label_field.h"

namespace lv {

// Windows takes the next control in the order of Tab.
void LeadToField(void*, void*) {}

}  // namespace lv
