#include "platform/files.h"

#include <functional>

#include "platform/code_page.h"

namespace lv {

Result<WalkedDirectory> Files::ListForWalk(std::string_view directory) {
    auto listed = List(directory);
    if (!listed.Ok()) {
        return listed.Fault;
    }
    return WalkedDirectory{std::hash<std::string>()(LowerCase(directory)), std::move(listed.Value)};
}

}  // namespace lv
