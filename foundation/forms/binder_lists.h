// foundation/forms/binder_lists.h
//
// How the binder's controls of many rows or pages are brought in line with their structs: by what differs alone, for
// a toolkit's row is made slowly.

#pragma once

#include <wx/bmpcbox.h>
#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/listbox.h>
#include <wx/notebook.h>

#include <functional>
#include <memory>
#include <vector>

#include "foundation/controls.h"

namespace lv {

/// Brings one control in line; whether something came or went.
using Shower = std::function<bool()>;

/// `none` is a last row, on the screen alone; without it there is no such row.
Shower ChoiceShower(const ListBox& model, wxChoice* view, const wxString& none);
Shower ImageListShower(const ImageCombo& model, wxBitmapComboBox* view);
Shower ListShower(const ListBox& model, wxListBox* view);
/// A list with a field; while `waiting` is set the field has its text and the list no rows.
Shower FieldListShower(const ListBox& model, wxComboBox* view, const std::shared_ptr<const bool>& waiting);
/// `pages` are the windows of all pages, in their order.
Shower PageShower(const TabSet& model, wxNotebook* view, std::vector<wxWindow*> pages);

/// The tabs that are there, by their place among all pages.
std::vector<int> VisiblePages(const TabSet& model);

}  // namespace lv
