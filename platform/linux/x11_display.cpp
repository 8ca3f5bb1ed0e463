#include "platform/linux/x11_display.h"

#include <xcb/xtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace lv {

namespace {

constexpr std::uint32_t kLongestProperty = 65536;  // in units of four bytes

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};
template <class Reply>
using Owned = std::unique_ptr<Reply, FreeReply>;

template <class Reply>
Owned<Reply> Own(Reply* reply) {
    return Owned<Reply>(reply);
}

}  // namespace

std::unique_ptr<X11Display> X11Display::Open(const std::string& name) {
    int screen = 0;
    xcb_connection_t* connection = xcb_connect(name.empty() ? nullptr : name.c_str(), &screen);
    if (xcb_connection_has_error(connection) != 0) {
        xcb_disconnect(connection);
        return nullptr;
    }
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; screen > 0 && screens.rem > 1; --screen) {
        xcb_screen_next(&screens);
    }
    return std::unique_ptr<X11Display>(new X11Display(connection, screens.data->root));
}

X11Display::~X11Display() {
    xcb_disconnect(connection_);
}

bool X11Display::IsAlive() const {
    return xcb_connection_has_error(connection_) == 0;
}

xcb_atom_t X11Display::Atom(const char* name) {
    const auto known = atoms_.find(name);
    if (known != atoms_.end()) {
        return known->second;
    }
    const auto length = static_cast<std::uint16_t>(std::strlen(name));
    const auto reply = Own(xcb_intern_atom_reply(connection_, xcb_intern_atom(connection_, 0, length, name), nullptr));
    return atoms_[name] = reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

std::string X11Display::Property(xcb_window_t window, xcb_atom_t property, xcb_atom_t type) {
    const auto asked = xcb_get_property(connection_, 0, window, property, type, 0, kLongestProperty);
    const auto reply = Own(xcb_get_property_reply(connection_, asked, nullptr));
    if (!reply || reply->format == 0) {
        return {};
    }
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

std::string X11Display::Bytes(xcb_window_t window, const char* property) {
    return Property(window, Atom(property), XCB_GET_PROPERTY_TYPE_ANY);
}

std::string X11Display::BytesOfType(xcb_window_t window, const char* property, const char* type) {
    return Property(window, Atom(property), Atom(type));
}

std::vector<std::uint32_t> X11Display::Numbers(xcb_window_t window, const char* property) {
    const std::string bytes = Bytes(window, property);
    std::vector<std::uint32_t> numbers(bytes.size() / sizeof(std::uint32_t));
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        std::memcpy(&numbers[i], &bytes[i * sizeof(std::uint32_t)], sizeof(std::uint32_t));
    }
    return numbers;
}

bool X11Display::HasManager() {
    return !Numbers(root_, "_NET_SUPPORTING_WM_CHECK").empty();
}

std::vector<xcb_window_t> X11Display::TopWindows() {
    std::vector<xcb_window_t> windows = Numbers(root_, "_NET_CLIENT_LIST_STACKING");
    if (windows.empty()) {
        windows = Numbers(root_, "_NET_CLIENT_LIST");
    }
    if (!HasManager()) {
        const auto reply = Own(xcb_query_tree_reply(connection_, xcb_query_tree(connection_, root_), nullptr));
        if (reply) {
            const xcb_window_t* children = xcb_query_tree_children(reply.get());
            windows.assign(children, children + xcb_query_tree_children_length(reply.get()));
        }
    }
    std::reverse(windows.begin(), windows.end());  // they are listed from the bottom up
    return windows;
}

bool X11Display::Exists(xcb_window_t window) {
    const auto asked = xcb_get_window_attributes(connection_, window);
    return Own(xcb_get_window_attributes_reply(connection_, asked, nullptr)) != nullptr;
}

void X11Display::AskManager(xcb_window_t window, const char* message, const std::vector<std::uint32_t>& data) {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = Atom(message);
    std::copy_n(data.begin(), std::min<std::size_t>(data.size(), 5), event.data.data32);
    xcb_send_event(connection_, 0, root_, XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&event));
    Flush();
}

void X11Display::Map(xcb_window_t window) {
    xcb_map_window(connection_, window);
    Flush();
}

xcb_window_t X11Display::ActiveWindow() {
    if (HasManager()) {
        const std::vector<std::uint32_t> active = Numbers(root_, "_NET_ACTIVE_WINDOW");
        return active.empty() ? 0 : active.front();
    }
    const auto reply = Own(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
    return reply ? reply->focus : 0;
}

void X11Display::TakeFocus(xcb_window_t window) {
    const std::uint32_t above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(connection_, window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    xcb_set_input_focus(connection_, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
    Flush();
}

xcb_keycode_t X11Display::KeyOf(std::uint32_t symbol) {
    const xcb_setup_t* setup = xcb_get_setup(connection_);
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const auto asked = xcb_get_keyboard_mapping(connection_, setup->min_keycode, count);
    const auto reply = Own(xcb_get_keyboard_mapping_reply(connection_, asked, nullptr));
    if (!reply) {
        return 0;
    }
    const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
    const std::size_t width = reply->keysyms_per_keycode;
    // Layout by layout: the key that gives the letter without a switch comes first.
    for (std::size_t layout = 0; layout < width; ++layout) {
        for (std::size_t key = 0; key < count; ++key) {
            if (symbols[key * width + layout] == symbol) {
                return static_cast<xcb_keycode_t>(setup->min_keycode + static_cast<int>(key));
            }
        }
    }
    return 0;
}

bool X11Display::MayPressKeys() {
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection_, &xcb_test_id);
    return extension != nullptr && extension->present != 0;
}

void X11Display::FakeKey(std::uint8_t event, xcb_keycode_t key) {
    xcb_test_fake_input(connection_, event, key, XCB_CURRENT_TIME, root_, 0, 0, 0);
    Flush();
}

void X11Display::PressKey(xcb_keycode_t key) {
    FakeKey(XCB_KEY_PRESS, key);
}

void X11Display::ReleaseKey(xcb_keycode_t key) {
    FakeKey(XCB_KEY_RELEASE, key);
}

void X11Display::Flush() {
    const auto reply = Own(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
    // Errors about windows that have gone come as events; nobody here waits for any.
    while (const auto event = Own(xcb_poll_for_event(connection_))) {
    }
}

}  // namespace lv
