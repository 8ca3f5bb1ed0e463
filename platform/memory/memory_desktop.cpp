#include "platform/memory/memory_desktop.h"

#include "platform/key_strokes.h"

namespace lv {

std::vector<TopWindow> MemoryDesktop::EnumWindows() {
    std::vector<TopWindow> found;
    for (const auto& [handle, window] : Windows) {
        found.push_back({handle, CutToBuffer(window.Title), CutToBuffer(window.Class), window.ClassKnown});
    }
    return found;
}

std::string MemoryDesktop::WindowTitle(WindowHandle window) {
    const auto found = Windows.find(window);
    return found == Windows.end() ? std::string() : found->second.Title;
}

bool MemoryDesktop::IsIconic(WindowHandle window) {
    const auto found = Windows.find(window);
    return found != Windows.end() && found->second.Iconic;
}

void MemoryDesktop::OpenIcon(WindowHandle window) {
    Log.push_back("open " + std::to_string(window));
    if (const auto found = Windows.find(window); found != Windows.end()) {
        found->second.Iconic = false;
    }
}

bool MemoryDesktop::SetForegroundWindow(WindowHandle window) {
    Log.push_back("front " + std::to_string(window));
    return !RefuseForeground && Windows.contains(window);
}

void MemoryDesktop::CloseWindow(WindowHandle window) {
    Log.push_back("close " + std::to_string(window));
    if (const auto found = Windows.find(window); found != Windows.end()) {
        found->second.Iconic = true;
    }
}

Error MemoryDesktop::SendKeys(std::string_view keys) {
    if (!KeyStrokesOf(keys)) {
        return MakeError(error::kInvalidCall);
    }
    if (RefuseKeys) {
        return RefuseKeys;
    }
    Log.push_back("keys " + std::string(keys));
    if (OnKeys) {
        OnKeys(keys);
    }
    return {};
}

}  // namespace lv
