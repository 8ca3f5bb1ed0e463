// platform/linux/end_signals.h
//
// The signals by which a session, a shutdown or a user asks the program to end.

#pragma once

namespace lv {

/// While this lives SIGTERM, SIGHUP and SIGINT are kept, for the program to put its things in order first. One that was
/// ignored before stays ignored; the second of one sort ends the program at once. There is one of these at a time.
class EndSignals {
  public:
    EndSignals();
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

    /// Whether one came. A look that costs nothing.
    [[nodiscard]] bool Came() const;

    /// Ends the program by the signal that came, so that its sender sees that it was obeyed.
    void Obey();
};

}  // namespace lv
