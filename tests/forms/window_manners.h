// tests/forms/window_manners.h
//
// What every window owes its user, held for each dialog that any test opens: no two of its controls share an access key
// unless they have the same caption, and what takes the keyboard has a text or a name.

#pragma once

#include <wx/window.h>

#include <string>

namespace lv {

/// Whether assistive tools are told what a control is called; Wine's service for it refuses.
bool SystemKeepsNames(wxWindow& control);

/// The controls in sight that share an access key, as "c: &Cool, &Cancel"; empty if none do.
std::string SharedAccessKeys(const wxWindow& window);

/// The controls in sight that take the keyboard and that assistive tools could not name; empty if there are none, or if
/// the system keeps no names.
std::string NamelessControls(const wxWindow& window);

/// From now on a dialog without manners fails the test that opens it.
void WatchManners();

}  // namespace lv
