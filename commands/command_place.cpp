#include "commands/command_place.h"

#include "platform/code_page.h"

namespace lv {

Text PrintedPath(const CommandPlace& place, TextView path) {
    const std::string host = place.PrintsHostPaths ? place.System.Disk.ToHost(path) : std::string();
    const auto printed = FromUtf8(host);
    return printed && !printed->empty() ? *printed : Text(path);
}

Text PrintedFault(const CommandPlace& place, const Error& fault, TextView path) {
    const std::size_t at = path.empty() ? Text::npos : fault.Text.find(path);
    return at == Text::npos ? fault.Text : Text(fault.Text).replace(at, path.size(), PrintedPath(place, path));
}

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
