#include "launcher/links/taken_links.h"

#include "launcher/links/class_links.h"
#include "launcher/links/desktop_links.h"

namespace lv {

bool CanTakeLinks(const Platform& system) {
    return system.Lists != nullptr || system.Trees != nullptr;
}

bool TakesLinks(Platform& system) {
    return system.Lists != nullptr ? DesktopGivesLinks(*system.Lists)
                                   : system.Trees != nullptr && ClassesGiveLinks({system.Registry, *system.Trees});
}

std::vector<Text> HoldersOfLinks(Platform& system) {
    return system.Lists != nullptr   ? LinksOfOthers(*system.Lists)
           : system.Trees != nullptr ? LinksOfOthers({system.Registry, *system.Trees})
                                     : std::vector<Text>();
}

Error TakeLinks(Platform& system) {
    return system.Lists != nullptr   ? TakeDesktopLinks(*system.Lists)
           : system.Trees != nullptr ? TakeClassLinks({system.Registry, *system.Trees})
                                     : MakeError(error::kDeviceUnavailable);
}

Error LeaveLinks(Platform& system) {
    return system.Lists != nullptr   ? LeaveDesktopLinks(*system.Lists)
           : system.Trees != nullptr ? LeaveClassLinks({system.Registry, *system.Trees})
                                     : MakeError(error::kDeviceUnavailable);
}

}  // namespace lv
