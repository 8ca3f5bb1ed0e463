#include "commands/command_place.h"

namespace lv {

Text Printed(TextView text) {
    Text printed;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\r') {
            if (i + 1 == text.size() || text[i + 1] != '\n') {
                printed += '\n';
            }
        } else if (c == '\n' || c == '\t') {
            printed += c;
        } else {
            printed += static_cast<unsigned char>(c) < 0x20 || c == 0x7F ? '?' : c;
        }
    }
    if (!printed.empty() && printed.back() != '\n') {
        printed += '\n';
    }
    return printed;
}

}  // namespace lv
