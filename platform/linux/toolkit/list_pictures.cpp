#include "platform/toolkit/list_pictures.h"

#include <algorithm>
#include <cstdint>

#include "platform/linux/toolkit/toolkit_function.h"

namespace lv {

namespace {

constexpr int kPictureColumn = 0;  // of the list's rows, as the toolkit makes them

// GList, whose nodes begin with what they hold.
struct ListNode {
    void* Data;
};

template <class Function>
bool Take(Function& function, const char* name) {
    function = ToolkitFunction<Function>(name);
    return function != nullptr;
}

/// What GTK and its drawing library do with a picture.
struct PictureFunctions {
    void (*GetValue)(void*, void*, ...) = nullptr;
    void (*SetProperty)(void*, const char*, ...) = nullptr;
    void (*Release)(void*) = nullptr;
    int (*HeightOf)(void*) = nullptr;
    void* (*MakeSurface)(void*, int, void*) = nullptr;
    void (*ReleaseSurface)(void*) = nullptr;

    bool AreThere = Take(GetValue, "gtk_tree_model_get") && Take(SetProperty, "g_object_set") &&
                    Take(Release, "g_object_unref") && Take(HeightOf, "gdk_pixbuf_get_height") &&
                    Take(MakeSurface, "gdk_cairo_surface_create_from_pixbuf") &&
                    Take(ReleaseSurface, "cairo_surface_destroy");
};

const PictureFunctions& Functions() {
    static const PictureFunctions functions;
    return functions;
}

// As a pixbuf a picture has no scale; as a surface it has.
void ShowFittingPicture(void*, void* cell, void* rows, void* row, void* height) {
    const PictureFunctions& toolkit = Functions();
    if (!toolkit.AreThere) {
        return;
    }
    void* picture = nullptr;
    toolkit.GetValue(rows, row, kPictureColumn, &picture, -1);  // NOLINT(clang-analyzer-core.*): as AreThere says
    if (picture == nullptr) {
        return;
    }
    const int wanted = static_cast<int>(reinterpret_cast<std::intptr_t>(height));
    void* const surface = toolkit.MakeSurface(picture, std::max(1, toolkit.HeightOf(picture) / wanted), nullptr);
    toolkit.SetProperty(cell, "surface", surface, nullptr);
    toolkit.ReleaseSurface(surface);
    toolkit.Release(picture);
}

}  // namespace

void FitListPictures(void* list, int height) {
    const auto cellsOf = ToolkitFunction<ListNode* (*)(void*)>("gtk_cell_layout_get_cells");
    const auto releaseList = ToolkitFunction<void (*)(void*)>("g_list_free");
    const auto setShower =
        ToolkitFunction<void (*)(void*, void*, void (*)(void*, void*, void*, void*, void*), void*, void*)>(
            "gtk_cell_layout_set_cell_data_func");
    if (list == nullptr || height <= 0 || cellsOf == nullptr || releaseList == nullptr || setShower == nullptr ||
        !Functions().AreThere) {
        return;
    }
    ListNode* const cells = cellsOf(list);
    if (cells != nullptr) {
        // GTK keeps a number as a pointer. NOLINTNEXTLINE(performance-no-int-to-ptr)
        void* const kept = reinterpret_cast<void*>(static_cast<std::intptr_t>(height));
        setShower(list, cells->Data, ShowFittingPicture, kept, nullptr);
    }
    releaseList(cells);
}

}  // namespace lv
