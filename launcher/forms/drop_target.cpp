#include "launcher/forms/drop_target.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/forms/wx_text.h"
#include "launcher/drop/file_link.h"
#include "launcher/drop/offer_dropped.h"
#include "launcher/window/window_life.h"

namespace lv {

namespace {

// The first line: a browser adds the page's title in a second one.
Text FirstLine(TextView text) {
    const TextView bounded = text.substr(0, kLongestDroppedWord + 1);
    return TrimWhite(bounded.substr(0, bounded.find_first_of("\r\n")));
}

}  // namespace

/// Addresses come as a list of files too, from a browser above all: what is no file there is kept as text.
class DropTarget::List : public wxFileDataObject {
  public:
    bool SetData(std::size_t size, const void* bytes) override {
        const bool taken = wxFileDataObject::SetData(size, bytes);
        Raw = GetFilenames().empty()
                  ? wxString::FromUTF8(static_cast<const char*>(bytes), std::min(size, kLongestDroppedWord))
                  : wxString();
        return taken;
    }
    using wxFileDataObject::SetData;

    wxString Raw;
};

DropTarget::DropTarget(Launcher& launcher) : launcher_(launcher), list_(new List), text_(new wxTextDataObject) {
    auto* both = new wxDataObjectComposite;
    both->Add(list_, true);
    both->Add(text_);
    SetDataObject(both);
}

bool DropTarget::HasTime() const {
    return !launcher_.Dropped.IsThere() && !launcher_.LaunchUnderWay && !DialogIsUp(launcher_.run);
}

// Nothing is ever moved away from where it was.
wxDragResult DropTarget::OnDragOver(wxCoord /*x*/, wxCoord /*y*/, wxDragResult offered) {
    return !HasTime() || offered == wxDragNone ? wxDragNone : wxDragCopy;
}

bool DropTarget::OnDrop(wxCoord /*x*/, wxCoord /*y*/) {
    return HasTime();
}

wxDragResult DropTarget::OnData(wxCoord /*x*/, wxCoord /*y*/, wxDragResult /*offered*/) {
    if (!GetData()) {
        return wxDragNone;
    }
    auto& both = *static_cast<wxDataObjectComposite*>(GetDataObject());
    const bool isList = both.GetReceivedFormat().GetType() == wxDF_FILENAME;
    const bool taken = !isList                         ? OnDropText(text_->GetText())
                       : list_->GetFilenames().empty() ? OnDropText(list_->Raw)
                                                       : OnDropFiles(list_->GetFilenames());
    return taken ? wxDragCopy : wxDragNone;
}

bool DropTarget::OnDropFiles(const wxArrayString& files) {
    if (files.empty() || !HasTime()) {
        return false;
    }
    Files& disk = launcher_.run.System.Disk;
    const std::string host = files[0].utf8_string();
    const Text path = disk.FromHost(host);
    const Error fault = path.empty() ? disk.WhyNotFromHost(host) : Error();
    return NoteDropped(launcher_, {.Word = path, .Count = files.size(), .Fault = fault});
}

bool DropTarget::OnDropText(const wxString& text) {
    const Text word = FirstLine(FromWx(text));
    if (const auto host = PathOfFileLink(word)) {
        wxArrayString file;
        file.Add(wxString::FromUTF8(*host));
        return OnDropFiles(file);
    }
    return !word.empty() && HasTime() && NoteDropped(launcher_, {.Word = word, .Count = 1, .Fault = {}});
}

}  // namespace lv
