// firstpaint PROGRAM: starts the program, waits until its first window is drawn and kills it. Prints the
// milliseconds until then as measured through the X server, the milliseconds of processor time, which other
// programs affect less, and the peak memory in kB. Requires an X display without a window manager.
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <memory>
#include <signal.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <xcb/xcb.h>

namespace {

using Clock = std::chrono::steady_clock;

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

constexpr int smallestWindow = 200; // toolkits create small helper windows
constexpr auto rest = std::chrono::milliseconds(100);

// The next mapped window that is not a helper window.
xcb_window_t mappedWindow(xcb_connection_t* display)
{
    while (Reply<xcb_generic_event_t> event{xcb_wait_for_event(display), &std::free}) {
        if ((event->response_type & 0x7f) != XCB_MAP_NOTIFY)
            continue;
        const xcb_window_t window = reinterpret_cast<xcb_map_notify_event_t*>(event.get())->window;
        const Reply<xcb_get_geometry_reply_t> geometry{
            xcb_get_geometry_reply(display, xcb_get_geometry(display, window), nullptr), &std::free};
        if (geometry && geometry->width >= smallestWindow)
            return window;
    }
    return XCB_NONE;
}

// Whether the window's middle row of pixels has more than one colour.
bool drawn(xcb_connection_t* display, xcb_window_t window)
{
    const Reply<xcb_get_geometry_reply_t> geometry{
        xcb_get_geometry_reply(display, xcb_get_geometry(display, window), nullptr), &std::free};
    if (!geometry)
        return false;
    const auto middle = static_cast<std::int16_t>(geometry->height / 2);
    const Reply<xcb_get_image_reply_t> image{
        xcb_get_image_reply(
            display,
            xcb_get_image(display, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, middle, geometry->width, 1, ~0U),
            nullptr),
        &std::free};
    if (!image)
        return false;
    const auto* pixels = reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(image.get()));
    for (int i = 1; i < geometry->width; ++i)
        if (pixels[i] != pixels[0])
            return true;
    return false;
}

// The peak memory of the process in kB.
long memoryPeak(pid_t process)
{
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string word; status >> word;)
        if (long size = 0; word == "VmHWM:" && status >> size)
            return size;
    return 0;
}

double inMilliseconds(const timeval& time)
{
    return double(time.tv_sec) * 1000 + double(time.tv_usec) / 1000;
}

} // namespace

int main(int argc, char* argv[])
{
    xcb_connection_t* display = xcb_connect(nullptr, nullptr);
    if (argc < 2 || xcb_connection_has_error(display)) {
        std::cerr << "usage: firstpaint PROGRAM, with a display\n";
        return EXIT_FAILURE;
    }
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(display, root, XCB_CW_EVENT_MASK, &events);
    // After this reply the mask is set.
    std::free(xcb_get_input_focus_reply(display, xcb_get_input_focus(display), nullptr));

    const auto start = Clock::now();
    const pid_t program = fork();
    if (program == 0) {
        execvp(argv[1], argv + 1);
        _exit(EXIT_FAILURE);
    }
    alarm(20); // ends the wait for a program without a window
    const xcb_window_t window = mappedWindow(display);
    while (!drawn(display, window))
        std::this_thread::sleep_for(std::chrono::microseconds(200));
    const std::chrono::duration<double, std::milli> taken = Clock::now() - start;
    std::this_thread::sleep_for(rest);
    const long peak = memoryPeak(program);

    kill(program, SIGKILL);
    rusage used{};
    wait4(program, nullptr, 0, &used);
    std::cout << taken.count() << ' ' << inMilliseconds(used.ru_utime) + inMilliseconds(used.ru_stime) << ' '
              << peak << '\n';
    xcb_disconnect(display);
}
