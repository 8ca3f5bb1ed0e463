#include "foundation/forms/pictures.h"

#include <wx/image.h>
#include <wx/mstream.h>

#include "assets/embedded_pictures.h"

namespace lv {

namespace {

wxBitmap Decode(const EmbeddedPicture& picture) {
    return wxBitmap::NewFromPNGData(picture.Png.data(), picture.Png.size());
}

}  // namespace

wxBitmapBundle PictureOf(TextView name, int height) {
    wxVector<wxBitmap> sizes;
    for (const EmbeddedPicture& picture : EmbeddedPictures()) {
        if (picture.Name == name && picture.Height >= height && picture.Height <= height * 3) {
            sizes.push_back(Decode(picture));
        }
    }
    return wxBitmapBundle::FromBitmaps(sizes);
}

wxIconBundle ProgramIcon() {
    wxIconBundle icons;
    for (const EmbeddedPicture& picture : EmbeddedPictures()) {
        if (picture.Name == "lorvane3d") {
            wxIcon icon;
            icon.CopyFromBitmap(Decode(picture));
            icons.AddIcon(icon);
        }
    }
    return icons;
}

}  // namespace lv
