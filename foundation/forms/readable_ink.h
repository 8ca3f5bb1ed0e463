// foundation/forms/readable_ink.h
//
// Colours that can be read on what they stand on.

#pragma once

#include <wx/colour.h>

namespace lv {

/// The colour, made lighter on a dark ground and darker on a light one as far as it takes to be told from it.
wxColour ReadableInk(const wxColour& ink, const wxColour& ground);

}  // namespace lv
