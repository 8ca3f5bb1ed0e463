// A registry file: the key's name up to a character 0, then the file.

#include "platform/linux/reg_file.h"

#include "tests/fuzz/readers.h"

namespace lv {

void FuzzRegFile(TextView input) {
    const TextView path = TakePart(input);
    (void)ReadRegFile(input, "Software\\Valve");
    (void)ReadRegFile(input, path);
    const RegistryValue text{kRegistryText, std::string(input), 0};
    const auto file = ComposeRegFile("Software\\Valve", path, text);
    if (!file) {
        return;
    }
    const auto key = ReadRegFile(*file, "software\\valve");
    MustHold(key && key->size() == 1, "one value was set, and no other");
    MustHold(key->begin()->second.Type == kRegistryText, "a text stays one");
}

}  // namespace lv
