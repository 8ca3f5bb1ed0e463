// foundation/forms/binder.h
//
// Ties a window's struct to the toolkit's controls: forwards each event to its handler with the new state in the
// struct, and afterwards brings the controls in line with the struct. A list that one picks from is searched by typing,
// if it is long.

#pragma once

#include <wx/anybutton.h>
#include <wx/checkbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <deque>
#include <functional>
#include <memory>
#include <vector>

#include "foundation/forms/binder_lists.h"

namespace lv {

/// Whether the "&" of a label's caption marks the access key of the field behind it, or is one of a name.
enum class LabelText { Literal, Keyed };

class Binder {
  public:
    using Handler = std::function<void()>;

    /// `after` runs behind each handler: the user interface brings all live windows in line there.
    explicit Binder(Handler after) : after_(std::move(after)) {}
    Binder(const Binder&) = delete;
    Binder& operator=(const Binder&) = delete;

    /// `shown` makes the label out of the caption; without it that is the label.
    void Bind(const char* name, CheckBox& model, wxCheckBox* view, Handler click, Text (*shown)(TextView) = nullptr);
    void Bind(const char* name, CommandButton& model, wxAnyButton* view, Handler click);
    /// `none` is a last row, on the screen alone, that takes the selection away; without it there is no such row.
    void Bind(const char* name, ListBox& model, wxChoice* view, Handler click, const wxString& none = "");
    void Bind(const char* name, ListBox& model, wxListBox* view, Handler click);
    /// A list with a field: `typed` gets each text that is typed, and puts it into the list.
    void Bind(const char* name, ListBox& model, wxComboBox* view, Handler click, std::function<void(TextView)> typed);
    /// A page that is not visible, or not enabled, leaves the tabs. `pages` are the windows of all pages, in their
    /// order.
    void Bind(const char* name, TabSet& model, wxNotebook* view, std::vector<wxWindow*> pages,
              std::function<void(int)> click);
    void Bind(const char* name, ImageCombo& model, wxBitmapComboBox* view, Handler click);
    void Bind(const char* name, TextBox& model, wxTextCtrl* view, Handler change);
    void Bind(const char* name, Label& model, wxStaticText* view, LabelText kind = LabelText::Literal);
    void Bind(const char* name, Panel& model, wxWindow* view);

    /// Anything that brings itself in line when it is asked to; it answers whether something came or went.
    void OnShow(std::function<bool()> show) { showers_.push_back(std::move(show)); }

    /// From now on what may be long waits for FillOne: of a list with a field the rows (its text is shown), of a list
    /// box, and of what OnShowLong brings in line, all until it is on the screen.
    void FillLater() { fillLater_ = true; }
    void OnShowLong(wxWindow* view, std::function<bool()> show) { showers_.push_back(Long(view, std::move(show))); }
    /// Gives the next list its rows; false if all have them.
    bool FillOne();

    /// Runs a handler as if its control had been used.
    void Run(const Handler& handler);

    /// Brings all controls in line with the struct; true if something came or went, so that the window is to be laid
    /// out anew.
    bool Show();

  private:
    struct LateRows {
        std::size_t Shower;
        std::shared_ptr<bool> Waiting;
    };
    Shower Long(wxWindow* view, Shower show);
    template <class List>
    void Search(List& model, wxWindow* view, const Handler& click);
    void Add(const char* name, Control& model, wxWindow* view, Shower show);

    Handler after_;
    std::vector<Shower> showers_;
    std::deque<LateRows> lateRows_;
    bool fillLater_ = false;
    bool showing_ = false;
    bool turning_ = false;  // a page is: its turn ends in a handler of its own
};

}  // namespace lv
