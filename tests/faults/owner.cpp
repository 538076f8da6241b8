// plotvue-owner FILE [PIECES [FORMAT...]]: a well-behaved owner of the X11 clipboard. It offers the bytes of
// the file in each of the formats, or as UTF8_STRING if none is given. A long answer goes in pieces: after
// PIECES of the first one, the program stops itself with SIGSTOP, as if it hung; with 0, it stops before its
// first answer. SIGCONT lets it go on. It writes "held" when it owns the clipboard, and ends when another
// program takes it.
#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>
#include <xcb/xcb.h>

namespace {

constexpr std::size_t pieceSize = 100'000;
constexpr int never = -1;

class Owner {
public:
    Owner(xcb_connection_t* display, std::string text, int pieces, const std::vector<std::string>& formats)
        : display_(display),
          text_(std::move(text)),
          piecesToStop_(pieces)
    {
        const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(display)).data;
        window_ = xcb_generate_id(display);
        xcb_create_window(display, 0, window_, screen.root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                          screen.root_visual, 0, nullptr);
        for (const std::string& format : formats)
            offered_.push_back(atom(format));
        xcb_set_selection_owner(display, window_, clipboard_, XCB_CURRENT_TIME);
    }

    bool holdsTheClipboard() const
    {
        const auto asked = xcb_get_selection_owner(display_, clipboard_);
        const std::unique_ptr<xcb_get_selection_owner_reply_t, void (*)(void*)> reply{
            xcb_get_selection_owner_reply(display_, asked, nullptr), &std::free};
        return reply && reply->owner == window_;
    }

    void serve()
    {
        while (const std::unique_ptr<xcb_generic_event_t, void (*)(void*)> event{xcb_wait_for_event(display_),
                                                                                 &std::free}) {
            const int type = event->response_type & 0x7f; // 0: an error, perhaps the asker has gone
            if (type == XCB_SELECTION_REQUEST)
                answer(*reinterpret_cast<xcb_selection_request_event_t*>(event.get()));
            else if (type == XCB_PROPERTY_NOTIFY)
                goOn(*reinterpret_cast<xcb_property_notify_event_t*>(event.get()));
            else if (type == XCB_SELECTION_CLEAR)
                return;
            xcb_flush(display_);
        }
    }

private:
    xcb_atom_t atom(std::string_view name)
    {
        const auto asked = xcb_intern_atom(display_, 0, static_cast<std::uint16_t>(name.size()), name.data());
        const std::unique_ptr<xcb_intern_atom_reply_t, void (*)(void*)> reply{
            xcb_intern_atom_reply(display_, asked, nullptr), &std::free};
        return reply->atom;
    }

    void put(xcb_window_t window, xcb_atom_t property, xcb_atom_t type, std::uint8_t format,
             std::size_t count, const void* data)
    {
        xcb_change_property(display_, XCB_PROP_MODE_REPLACE, window, property, type, format,
                            static_cast<std::uint32_t>(count), data);
    }

    void answer(const xcb_selection_request_event_t& request)
    {
        xcb_selection_notify_event_t notice{};
        notice.response_type = XCB_SELECTION_NOTIFY;
        notice.time = request.time;
        notice.requestor = request.requestor;
        notice.selection = request.selection;
        notice.target = request.target;
        notice.property = request.property;
        if (request.target == targets_) {
            put(request.requestor, request.property, XCB_ATOM_ATOM, 32, offered_.size(), offered_.data());
        } else if (std::find(offered_.begin(), offered_.end(), request.target) == offered_.end()) {
            notice.property = XCB_NONE;
        } else if (stopIf(0); text_.size() <= pieceSize) {
            put(request.requestor, request.property, request.target, 8, text_.size(), text_.data());
        } else {
            const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
            xcb_change_window_attributes(display_, request.requestor, XCB_CW_EVENT_MASK, &mask);
            const auto size = static_cast<std::uint32_t>(text_.size());
            put(request.requestor, request.property, atom("INCR"), 32, 1, &size);
            sent_[{request.requestor, request.property}] = {request.target, 0};
        }
        xcb_send_event(display_, 0, request.requestor, 0, reinterpret_cast<const char*>(&notice));
    }

    void stopIf(int pieces)
    {
        if (pieces == piecesToStop_) {
            piecesToStop_ = never;
            std::raise(SIGSTOP);
        }
    }

    // Sends the next piece, after the asker has taken one. An empty piece tells it that there are no more.
    void goOn(const xcb_property_notify_event_t& taken)
    {
        const auto transfer = sent_.find({taken.window, taken.atom});
        if (taken.state != XCB_PROPERTY_DELETE || transfer == sent_.end())
            return;
        ++pieces_;
        stopIf(pieces_);
        auto& [type, sent] = transfer->second;
        const std::size_t size = std::min(pieceSize, text_.size() - sent);
        put(taken.window, taken.atom, type, 8, size, text_.data() + sent);
        sent += size;
        if (size == 0)
            sent_.erase(transfer);
    }

    xcb_connection_t* display_;
    std::string text_;
    int piecesToStop_, pieces_ = 0;
    xcb_window_t window_ = XCB_NONE;
    xcb_atom_t clipboard_ = atom("CLIPBOARD"), targets_ = atom("TARGETS");
    std::vector<xcb_atom_t> offered_{targets_};

    struct Transfer {
        xcb_atom_t type;
        std::size_t sent; // in bytes
    };
    std::map<std::pair<xcb_window_t, xcb_atom_t>, Transfer> sent_; // by window and property of the asker
};

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2)
        return EXIT_FAILURE;
    std::ostringstream text;
    text << std::ifstream(argv[1], std::ios::binary).rdbuf();
    xcb_connection_t* display = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(display))
        return EXIT_FAILURE;
    std::vector<std::string> formats(argv + std::min(argc, 3), argv + argc);
    if (formats.empty())
        formats.emplace_back("UTF8_STRING");
    Owner owner(display, text.str(), argc > 2 ? std::atoi(argv[2]) : never, formats);
    if (!owner.holdsTheClipboard())
        return EXIT_FAILURE;
    std::cout << "held" << std::endl; // flushed, because a test waits for it
    owner.serve();
    xcb_disconnect(display);
    return EXIT_SUCCESS;
}
