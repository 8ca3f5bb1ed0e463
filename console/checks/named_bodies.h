// console/checks/named_bodies.h
//
// The aliases and keys that a graph is made of.

#pragma once

#include "console/checks/alias_graph.h"
#include "console/files/start_run.h"

namespace lv {

/// All that a script defines and binds, in its order; a later definition is one more.
std::vector<NamedBody> NamedBodiesOf(TextView script, Console console);

/// The same of all that a start has run. Script is the place in its list.
std::vector<NamedBody> NamedBodiesOf(const StartRun& run);

}  // namespace lv
