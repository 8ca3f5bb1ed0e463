// launcher/links/taken_links.h
//
// Whether links of games (qw://, quake://, quake2://) come to this program, on whatever system, and how they come to do
// so. What is said of it is what the system says at the time.

#pragma once

#include <vector>

#include "foundation/text.h"
#include "platform/platform.h"

namespace lv {

/// False where the system has no place for it.
bool CanTakeLinks(const Platform& system);

bool TakesLinks(Platform& system);

/// Who has them otherwise, a row a scheme.
std::vector<Text> HoldersOfLinks(Platform& system);

Error TakeLinks(Platform& system);

/// Whoever had them before gets them back.
Error LeaveLinks(Platform& system);

}  // namespace lv
