// tests/engines/time_limit.h

#pragma once

namespace lv {

/// From now on a test that takes longer than five minutes ends the run, with its name and the processes of that moment.
void WatchTime();

}  // namespace lv
