// launcher/menu/menu_table.h
//
// The menu bar as one table: names, captions, keys, and what a click runs.

#pragma once

#include <span>

#include "launcher/menu/menu_items.h"

namespace lv {

struct Launcher;

struct MenuRow {
    MenuItem Item;
    const char* Name;
    int Index;  // of an indexed item, "ShowAll_Bar(2)"; -1: not indexed
    const char* Caption;
    const char* Key;  // "F2"; "": none
    MenuItem Parent;
    void (*Click)(Launcher&);  // null for a menu, and for an item whose work is not part of the program yet
};

/// All rows, in the order of MenuItem.
std::span<const MenuRow> MenuRows();
const MenuRow& MenuRowOf(MenuItem item);

/// A menu holds other items.
bool IsMenu(MenuItem item);

/// Items without a handler start disabled; menus never do. Those without a caption are hidden until they get one.
MenuState MakeMenuState();

/// Runs the item's handler, unless the item is disabled. The keys go through here too.
void Menu_Click(Launcher& launcher, MenuItem item);

/// The menus that the small pictures pop up, Menu_Pic(0) to (6).
constexpr int kMenuPictures = 7;
MenuItem MenuOfPicture(int index);
void Menu_Pic_Click(Launcher& launcher, int index);

}  // namespace lv
