// foundation/controls.h
//
// What a window is to the program: plain controls with plain state. The forms show them; the rules change them.

#pragma once

#include <vector>

#include "foundation/text.h"

namespace lv {

struct Control {
    bool Enabled = true;
    bool Visible = true;
    Text ToolTip;
};

struct Label : Control {
    Text Caption;
};

struct Panel : Control {
    Text Caption;
    int Top = 0;     // twips, 15 to the pixel
    int Height = 0;  // twips; 0: as high as its content
};

struct CheckBox : Control {
    Text Caption;
    int Value = 0;  // 0 clear, 1 ticked, 2 greyed
};

struct CommandButton : Control {
    Text Caption;
    bool Default = false;
};

struct TextBox : Control {
    lv::Text Text;
};

/// A plain list: a drop-down or an open one. Rows are padded items where they hold a record.
struct ListBox : Control {
    std::vector<Text> Items;
    int ListIndex = -1;

    [[nodiscard]] bool HasSelection() const {
        return ListIndex >= 0 && static_cast<std::size_t>(ListIndex) < Items.size();
    }
    [[nodiscard]] Text Selected() const { return HasSelection() ? Items[static_cast<std::size_t>(ListIndex)] : Text(); }
    void Clear() {
        Items.clear();
        ListIndex = -1;
    }
};

struct ImageComboItem {
    Text Title;
    Text Key;  // unique in its list
    Text Image;
    Text SelectedImage;
};

/// A drop-down whose rows have a picture and a key.
struct ImageCombo : Control {
    std::vector<ImageComboItem> Items;
    int ListIndex = -1;

    [[nodiscard]] bool HasSelection() const {
        return ListIndex >= 0 && static_cast<std::size_t>(ListIndex) < Items.size();
    }
    void Clear() {
        Items.clear();
        ListIndex = -1;
    }
};

/// A page of a tab control.
struct TabPage : Control {
    Text Caption;
};

struct TabSet : Control {
    std::vector<TabPage> Pages;
    int Tab = 0;  // the page that is shown

    TabPage& operator[](std::size_t page) { return Pages[page]; }
    const TabPage& operator[](std::size_t page) const { return Pages[page]; }
};

struct Picture : Control {
    int Index = 0;
};

}  // namespace lv
