#include "foundation/user_interface.h"

namespace lv {

std::optional<Text> UserInterface::InputBox(TextView, TextView, TextView) {
    return std::nullopt;
}

Error UserInterface::OpenHelp(TextView, const HelpPlace&) {
    return MakeError(error::kFileNotFound);
}

Error UserInterface::OpenUrl(TextView) {
    return MakeError(error::kFileNotFound);
}

}  // namespace lv
