// console/line_subject.h
//
// What a line of a script is about, told by its words alone, whatever console reads it.

#pragma once

#include "foundation/text.h"

namespace lv {

struct LineSubject {
    Text Name;             // in lower case: "bind x", "alias zoom", "fov", "say"; empty for a line of blanks
    bool IsWhole = false;  // two lines of that name are about the same thing, whatever else they say
    TextView Rest;         // a stretch of the line: what is said behind the name
};

/// A ";" or "//;" at the line's begin is passed over, as is "set". "unbind" is about what "bind" is about.
LineSubject SubjectOf(TextView line);

/// How much the two have in common; 0 if they are about two things.
std::size_t LikenessOf(const LineSubject& a, const LineSubject& b);

}  // namespace lv
