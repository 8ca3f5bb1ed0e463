// foundation/forms/handbook.h
//
// The window of the handbook.

#pragma once

#include <wx/filename.h>

#include <memory>

#include "foundation/window_placement.h"
#include "platform/error.h"

namespace lv {

/// Lives beside all other windows and can be used while a dialog is up.
class Handbook {
  public:
    Handbook();
    ~Handbook();
    Handbook(const Handbook&) = delete;
    Handbook& operator=(const Handbook&) = delete;

    /// Shows the contents and the first page. The place counts where the window is not up yet.
    Error Open(const wxFileName& book, const HelpPlace& place);

  private:
    class Controller;
    std::unique_ptr<Controller> controller_;
};

}  // namespace lv
