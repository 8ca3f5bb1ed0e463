// foundation/forms/pictures.h
//
// The program's pictures for the toolkit, at whatever scale the screen asks for.

#pragma once

#include <wx/bmpbndl.h>
#include <wx/iconbndl.h>

#include "foundation/text.h"

namespace lv {

/// The picture by its path below assets/, without ".svg", as high as `height` pixels at 100 %. One that is not there
/// is empty.
wxBitmapBundle PictureOf(TextView name, int height = 24);

/// The program's own icon in all its sizes.
wxIconBundle ProgramIcon();

}  // namespace lv
