// platform/web_browser.h
//
// The user's own browser.

#pragma once

#include <string>

#include "platform/error.h"

namespace lv {

/// Opens the address in the default browser. Error 53 if there is none, 57 if it did not take the address.
Error OpenInBrowser(const std::string& address);

}  // namespace lv
