// foundation/forms/wx_text.h
//
// The toolkit's edge: the program's text to the toolkit's and back.

#pragma once

#include <wx/string.h>

#include "foundation/text.h"

namespace lv {

wxString ToWx(TextView text);

/// A character without a code page 1252 form becomes "?".
Text FromWx(const wxString& text);

/// Without blanks at its ends and, for a padded list item, without the value behind the title: what a list shows.
wxString ShownItem(TextView item);

}  // namespace lv
