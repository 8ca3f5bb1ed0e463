// platform/toolkit/tab_stops.h
//
// Who keeps the stops of the Tab key.

#pragma once

namespace lv {

/// Whether the toolkit walks by itself from one window that can have the keyboard to the next. Elsewhere it asks each
/// window that Tab comes to.
bool ToolkitKeepsTabStops();

}  // namespace lv
