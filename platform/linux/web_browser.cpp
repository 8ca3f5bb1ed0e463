#include "platform/web_browser.h"

#include "platform/code_page.h"
#include "platform/linux/run_tool.h"

namespace lv {

namespace {

// What xdg-open ends with when it knows no program for the address.
constexpr int kNoTool = 3;

// A desktop that knows how to hand the address on has done so by then. Without one xdg-open becomes the browser.
constexpr std::chrono::milliseconds kHandingOn{1500};

}  // namespace

Error OpenInBrowser(const std::string& address) {
    Tool opener{ProgramOnPath("xdg-open"), {ToUtf8(address)}, "/", {}, kHandingOn};
    opener.MayStay = true;
    if (opener.Program.empty()) {
        return MakeError(error::kFileNotFound);
    }
    const Result<int> status = RunTool(opener);
    if (!status.Ok()) {
        return status.Fault;
    }
    return status.Value == 0 ? Error()
                             : MakeError(status.Value == kNoTool ? error::kFileNotFound : error::kDeviceFault);
}

}  // namespace lv
