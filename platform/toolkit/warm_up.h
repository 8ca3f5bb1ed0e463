// platform/toolkit/warm_up.h
//
// A window's first show, in part done ahead.

#pragma once

namespace lv {

/// `window` is the native handle of a window, or of a page in one, that is not yet shown: what the system needs for the
/// show, and can have before it, is made now.
void WarmUp(void* window);

/// The same for a part, that is hidden yet, of a window that is on the screen, and for each control in it. The parts
/// around it have to hang in each other: a page has to be among the tabs.
void WarmUpPart(void* part);

}  // namespace lv
