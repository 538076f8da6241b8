// plotvue-clipboardmanager FILE FORMAT: a clipboard manager. When the owner of the X11 clipboard asks it to
// take over, it writes the owner's content in FORMAT to FILE, tells the owner that it has done so, and ends.
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

namespace {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename Reply>
using Owned = std::unique_ptr<Reply, Free>;

class Manager {
public:
    explicit Manager(xcb_connection_t* display) : display_(display)
    {
        const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(display)).data;
        xcb_create_window(display, 0, window_, screen.root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                          screen.root_visual, 0, nullptr);
        xcb_set_selection_owner(display, window_, atom("CLIPBOARD_MANAGER"), XCB_CURRENT_TIME);
        xcb_flush(display);
    }

    void save(const char* file, std::string_view format)
    {
        const auto asked = wait<xcb_selection_request_event_t>(XCB_SELECTION_REQUEST);
        if (!asked || asked->target != atom("SAVE_TARGETS"))
            return;
        xcb_convert_selection(display_, window_, atom("CLIPBOARD"), atom(format), atom("content"),
                              XCB_CURRENT_TIME);
        xcb_flush(display_);
        if (!wait<xcb_selection_notify_event_t>(XCB_SELECTION_NOTIFY))
            return;
        constexpr std::uint32_t longest = 1'000'000;
        const Owned<xcb_get_property_reply_t> content{xcb_get_property_reply(
            display_,
            xcb_get_property(display_, 0, window_, atom("content"), XCB_GET_PROPERTY_TYPE_ANY, 0, longest),
            nullptr)};
        std::ofstream(file, std::ios::binary)
            .write(static_cast<const char*>(xcb_get_property_value(content.get())),
                   xcb_get_property_value_length(content.get()));

        const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(display_, asked->requestor, XCB_CW_EVENT_MASK, &mask);
        xcb_selection_notify_event_t done{};
        done.response_type = XCB_SELECTION_NOTIFY;
        done.time = asked->time;
        done.requestor = asked->requestor;
        done.selection = asked->selection;
        done.target = asked->target;
        done.property = asked->property;
        xcb_send_event(display_, 0, asked->requestor, 0, reinterpret_cast<const char*>(&done));
        xcb_flush(display_);
        wait<xcb_generic_event_t>(XCB_DESTROY_NOTIFY);
    }

private:
    xcb_atom_t atom(std::string_view name)
    {
        const auto asked = xcb_intern_atom(display_, 0, static_cast<std::uint16_t>(name.size()), name.data());
        return Owned<xcb_intern_atom_reply_t>(xcb_intern_atom_reply(display_, asked, nullptr))->atom;
    }

    template <typename Event>
    Owned<Event> wait(int type)
    {
        while (Owned<xcb_generic_event_t> event{xcb_wait_for_event(display_)})
            if ((event->response_type & 0x7f) == type)
                return Owned<Event>(reinterpret_cast<Event*>(event.release()));
        return nullptr;
    }

    xcb_connection_t* display_;
    xcb_window_t window_ = xcb_generate_id(display_);
};

} // namespace

int main(int argc, char** argv)
{
    xcb_connection_t* display = xcb_connect(nullptr, nullptr);
    if (argc != 3 || xcb_connection_has_error(display))
        return EXIT_FAILURE;
    Manager manager(display);
    std::cout << "ready" << std::endl;
    manager.save(argv[1], argv[2]);
    xcb_disconnect(display);
    return EXIT_SUCCESS;
}
