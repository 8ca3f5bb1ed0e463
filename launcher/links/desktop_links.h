// launcher/links/desktop_links.h
//
// The links of games on a Linux desktop: they come to the program whose entry the list of default applications names
// first.

#pragma once

#include <vector>

#include "foundation/text.h"
#include "platform/desktop_lists.h"

namespace lv {

/// Whether a link of each scheme comes to this very program, another copy of it apart.
bool DesktopGivesLinks(DesktopLists& lists);

/// Who is named ahead of this program, "quake:// other.desktop", a row a scheme.
std::vector<Text> LinksOfOthers(DesktopLists& lists);

/// From now on they come to this program.
Error TakeDesktopLinks(DesktopLists& lists);

/// No more: whoever was named before is so again.
Error LeaveDesktopLinks(DesktopLists& lists);

}  // namespace lv
