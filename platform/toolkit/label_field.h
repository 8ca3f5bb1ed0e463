// platform/toolkit/label_field.h
//
// The access key of a label, which leads to the field behind it.

#pragma once

namespace lv {

/// Both are the toolkit's native handles. Where the system finds the field by itself nothing happens.
void LeadToField(void* label, void* field);

}  // namespace lv
