#include "foundation/forms/search_keys.h"

#include <wx/timer.h>
#include <wx/utils.h>
#include <wx/weakref.h>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "foundation/forms/bubble.h"
#include "foundation/forms/wx_text.h"
#include "foundation/row_search.h"
#include "platform/toolkit/open_list_keys.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

constexpr double kMilliseconds = 1000;

double Now() {
    return wxGetUTCTimeUSec().ToDouble() / (kMilliseconds * kMilliseconds);
}

/// Keys that the list itself goes by, or that leave it.
bool LeavesSearch(int key) {
    return key == WXK_HOME || key == WXK_END || key == WXK_PAGEUP || key == WXK_PAGEDOWN || key == WXK_RETURN ||
           key == WXK_NUMPAD_ENTER || key == WXK_TAB;
}

class ListSearch : public wxTimer {
  public:
    ListSearch(wxWindow* list, SearchedRows rows) : list_(list), rows_(std::move(rows)) {}
    ListSearch(const ListSearch&) = delete;
    ListSearch& operator=(const ListSearch&) = delete;
    ~ListSearch() override { CloseBubble(); }

    /// True if the key was the search's.
    bool Hook(const wxKeyEvent& key) {
        if (key.HasAnyModifiers() || !IsOn()) {
            return false;
        }
        switch (key.GetKeyCode()) {
            case WXK_BACK:
                Follow(TakeBackInSearch(search_, Names(), Now()));
                return true;
            case WXK_UP:
            case WXK_NUMPAD_UP:
                Follow(StepInSearch(search_, Names(), rows_.Selected(), SearchStep::Up, Now()));
                return true;
            case WXK_DOWN:
            case WXK_NUMPAD_DOWN:
                Follow(StepInSearch(search_, Names(), rows_.Selected(), SearchStep::Down, Now()));
                return true;
            case WXK_ESCAPE:
                End();
                return true;
            default:
                if (LeavesSearch(key.GetKeyCode())) {
                    End();
                }
                return false;
        }
    }

    bool Type(const wxKeyEvent& key) {
        const wxChar character = key.GetUnicodeKey();
        const int modifiers = key.GetModifiers() & ~wxMOD_SHIFT;
        // A blank opens the list, or belongs to what has been typed.
        if (character < WXK_SPACE || character == WXK_DELETE || (character == WXK_SPACE && !IsOn()) ||
            (modifiers != 0 && modifiers != wxMOD_ALTGR) || !IsLong()) {
            return false;
        }
        Type(FromWx(wxString(character)));
        return true;
    }

    void Type(TextView letter) {
        if (letter.size() == 1) {
            Follow(TypeInSearch(search_, Names(), rows_.Selected(), letter[0], Now()));
        }
    }

    bool IsLong() const { return rows_.Count() > kRowsInSight; }

    void Notify() override { End(); }

    void End() {
        Stop();
        EndSearch(search_);
        CloseBubble();
        if (spoken_) {
            SetSpokenName(list_->GetHandle(), *spoken_);
            spoken_.reset();
        }
    }

  private:
    bool IsOn() const { return SearchIsOn(search_, Now()); }

    std::vector<Text> Names() const {
        std::vector<Text> names;
        for (std::size_t row = 0; row < rows_.Count(); ++row) {
            names.push_back(rows_.Name(row));
        }
        return names;
    }

    void Follow(const RowFound& found) {
        const Text said = SearchText(search_, found);
        if (said.empty()) {
            End();
            return;
        }
        ShowBubble(ToWx(said));
        if (!spoken_) {
            spoken_ = SpokenName(list_->GetHandle());
        }
        SetSpokenName(list_->GetHandle(), *spoken_ + (spoken_->empty() ? "" : ", ") + ToUtf8(said));
        StartOnce(static_cast<int>(kSearchPause * kMilliseconds));
        if (found.Row >= 0 && found.Row != rows_.Selected()) {
            rows_.Pick(found.Row);
        }
    }

    void ShowBubble(const wxString& text) {
        if (bubble_) {
            SetBubbleText(*bubble_, text);
        } else {
            bubble_ = MakeBubble(wxGetTopLevelParent(list_), kSearchBubbleName, text);
        }
        const wxRect place = list_->GetScreenRect();
        PutBubble(*bubble_, list_, place.GetTopLeft(), place.height);
        bubble_->Show();
    }

    void CloseBubble() {
        if (wxPopupWindow* const bubble = bubble_) {
            bubble_ = nullptr;
            bubble->SetName("");
            bubble->Hide();
            bubble->Destroy();
        }
    }

    wxWindow* list_;
    SearchedRows rows_;
    RowSearch search_;
    wxWeakRef<wxPopupWindow> bubble_;
    std::optional<std::string> spoken_;  // the list's own name, while it says more
};

}  // namespace

void SearchByTyping(wxWindow* list, SearchedRows rows) {
    const auto search = std::make_shared<ListSearch>(list, std::move(rows));
    // Windows' open list has the mouse for itself: its keys come without the hook, all others have been through it.
    list->Bind(wxEVT_CHAR_HOOK, [search](wxKeyEvent& key) { key.Skip(!search->Hook(key)); });
    list->Bind(wxEVT_KEY_DOWN, [search](wxKeyEvent& key) { key.Skip(!search->Hook(key)); });
    list->Bind(wxEVT_CHAR, [search](wxKeyEvent& key) { key.Skip(!search->Type(key)); });
    // The list goes with its search; what the system holds of it may go later.
    const std::weak_ptr<ListSearch> alive = search;
    WatchOpenList(
        list->GetHandle(), [alive] { return !alive.expired() && alive.lock()->IsLong(); },
        [alive](char32_t letter) {
            if (const auto its = alive.lock()) {
                its->Type(FromWx(wxString(wxUniChar(static_cast<long>(letter)))));
            }
        });
    list->Bind(wxEVT_KILL_FOCUS, [search](wxFocusEvent& event) {
        event.Skip();
        search->End();
    });
}

}  // namespace lv
