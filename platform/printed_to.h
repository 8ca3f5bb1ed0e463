// platform/printed_to.h
//
// Where a program prints to.

#pragma once

namespace lv {

enum class PrintedTo { Output, Errors };

}  // namespace lv
