// foundry/forms/name_picture.h
//
// The player's name in the game's own letters, and the map of those letters.

#pragma once

#include <wx/bitmap.h>
#include <wx/window.h>

#include <functional>

#include "foundry/editor/fig_frm.h"

namespace lv {

/// The map for the toolkit, each pixel `scale` pixels wide and high.
wxBitmap ToBitmap(const FontMap& map, int scale = 1);

/// Name_Pic: the name's letters side by side, each twice its size.
class NamePicture : public wxWindow {
  public:
    NamePicture(wxWindow* parent, Fig_Frm& model);

    /// Paints the name anew if it is another one.
    void ShowState();

  private:
    void Paint();

    Fig_Frm& model_;
    Text shown_;
};

/// Picture1: the map. A click gives its place in the map's pixels.
class FontMapPicture : public wxWindow {
  public:
    FontMapPicture(wxWindow* parent, const FontMap& map, std::function<void(int x, int y)> click);

    /// What assistive tools and the keyboard have: the arrow keys move a frame over the cells, Enter clicks on it.
    [[nodiscard]] int Cell() const { return cell_; }

  private:
    void Paint();
    void Press(wxKeyEvent& event);
    void MoveTo(int cell);

    wxBitmap map_;
    std::function<void(int x, int y)> click_;
    int cell_ = 65;
    int scale_ = 1;
};

}  // namespace lv
