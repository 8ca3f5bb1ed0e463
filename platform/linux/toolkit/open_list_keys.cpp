#include "platform/toolkit/open_list_keys.h"

#include <memory>

#include "platform/linux/toolkit/toolkit_function.h"

namespace lv {

namespace {

struct OpenListKeys {
    void* List;
    std::function<bool()> Wanted;
    std::function<void(char32_t)> Typed;
};

using Shared = std::shared_ptr<OpenListKeys>;
using AnyEvent = int (*)(void* rows, void* event, void* keys);
using Shown = void (*)(void* list, void* property, void* keys);
using Forget = void (*)(void* keys, void* closure);

constexpr int kKeyPress = 8;                                             // GDK_KEY_PRESS
constexpr unsigned kWithOtherKeys = 0x4 | 0x8 | 0x4000000 | 0x10000000;  // control, alt, super, meta
constexpr char32_t kBlank = U' ';
constexpr char32_t kDelete = 0x7F;
constexpr const char* kWatched = "lv-open-list-keys";

char32_t LetterOf(void* event) {
    static const auto typeOf = ToolkitFunction<int (*)(void*)>("gdk_event_get_event_type");
    static const auto keyOf = ToolkitFunction<int (*)(void*, unsigned*)>("gdk_event_get_keyval");
    static const auto stateOf = ToolkitFunction<int (*)(void*, unsigned*)>("gdk_event_get_state");
    static const auto unicode = ToolkitFunction<unsigned (*)(unsigned)>("gdk_keyval_to_unicode");
    unsigned key = 0;
    unsigned state = 0;
    if (!typeOf || !keyOf || !stateOf || !unicode || typeOf(event) != kKeyPress || !keyOf(event, &key) ||
        !stateOf(event, &state) || (state & kWithOtherKeys) != 0) {
        return 0;
    }
    const char32_t letter = unicode(key);
    return letter > kBlank && letter != kDelete ? letter : 0;
}

// Ahead of the list, which takes all that its menu gets.
int TakeKey(void*, void* event, void* keys) {
    static const auto close = ToolkitFunction<void (*)(void*)>("gtk_combo_box_popdown");
    const Shared its = *static_cast<Shared*>(keys);
    const char32_t letter = LetterOf(event);
    if (!close || letter == 0 || !its->Wanted()) {
        return 0;
    }
    close(its->List);
    its->Typed(letter);
    return 1;
}

void ForgetKeys(void* keys, void*) {
    delete static_cast<Shared*>(keys);
}

template <class Handler>
void Connect(void* object, const char* signal, Handler handler, const Shared& keys) {
    static const auto connect =
        ToolkitFunction<unsigned long (*)(void*, const char*, Handler, void*, Forget, int)>("g_signal_connect_data");
    if (connect) {
        connect(object, signal, handler, std::make_unique<Shared>(keys).release(), ForgetKeys, 0);
    }
}

// The open part is made anew when a list becomes one that scrolls.
void WatchRows(void* list, void*, void* keys) {
    static const auto accessible = ToolkitFunction<void* (*)(void*)>("gtk_combo_box_get_popup_accessible");
    static const auto widget = ToolkitFunction<void* (*)(void*)>("gtk_accessible_get_widget");
    static const auto mark = ToolkitFunction<void (*)(void*, const char*, void*)>("g_object_set_data");
    static const auto marked = ToolkitFunction<void* (*)(void*, const char*)>("g_object_get_data");
    if (!accessible || !widget || !mark || !marked) {
        return;
    }
    void* const popup = accessible(list);
    void* const rows = popup != nullptr ? widget(popup) : nullptr;
    if (rows != nullptr && marked(rows, kWatched) == nullptr) {
        mark(rows, kWatched, list);
        Connect<AnyEvent>(rows, "event", TakeKey, *static_cast<Shared*>(keys));
    }
}

}  // namespace

void WatchOpenList(void* list, std::function<bool()> wanted, std::function<void(char32_t)> typed) {
    static const auto isA = ToolkitFunction<int (*)(void*, unsigned long)>("g_type_check_instance_is_a");
    static const auto combo = ToolkitFunction<unsigned long (*)()>("gtk_combo_box_get_type");
    if (list != nullptr && isA && combo && isA(list, combo())) {
        Connect<Shown>(list, "notify::popup-shown", WatchRows,
                       std::make_shared<OpenListKeys>(OpenListKeys{list, std::move(wanted), std::move(typed)}));
    }
}

}  // namespace lv
