// foundation/topmost.h
//
// Whether the main window lies above all others, and how dialogs take it out of there for their time.

#pragma once

#include "foundation/text.h"

namespace lv {

struct Run;

struct TopmostState {
    Index Nesting = 0;         // dialogs that are up
    bool AlwaysOnTop = false;  // AlwaysOnTop_Bar is checked
    bool InBand = false;       // the main window lies above all others now: what the form shows
};

/// Counts a dialog that comes up; the first one takes the main window out of the topmost band. Before the main window
/// is loaded, and after it was unloaded, nothing happens and nothing is counted.
void SuspendTopmost(Run& run);

/// Counts a dialog that went; the last one puts the main window back, if it is to be always on top.
void ResumeTopmost(Run& run);

/// The bracket of one modal dialog.
class TopmostSuspension {
  public:
    explicit TopmostSuspension(Run& run) : run_(run) { SuspendTopmost(run_); }
    ~TopmostSuspension() { ResumeTopmost(run_); }
    TopmostSuspension(const TopmostSuspension&) = delete;
    TopmostSuspension& operator=(const TopmostSuspension&) = delete;

  private:
    Run& run_;
};

}  // namespace lv
