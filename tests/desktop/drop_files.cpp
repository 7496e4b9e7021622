// Drops files on a window of another program, as a file manager does by the protocol Xdnd, version 5.
//   drop_files WINDOW URI...      succeeds when the window has taken them

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <string>
#include <thread>

namespace {

class Drop {
public:
    Drop(Display* display, Window target, std::string uris)
        : display_(display), target_(target), uris_(std::move(uris)),
          source_(XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 1, 1, 0, 0, 0)) {}

    bool run() {
        XSetSelectionOwner(display_, atom("XdndSelection"), source_, CurrentTime);
        send("XdndEnter", {5L << 24, static_cast<long>(atom("text/uri-list")), 0, 0});
        send("XdndPosition", {0, middle(), CurrentTime, static_cast<long>(atom("XdndActionCopy"))});
        if (!wait_for("XdndStatus")) {
            return false;
        }
        send("XdndDrop", {0, CurrentTime, 0, 0});
        return wait_for("XdndFinished");
    }

private:
    Atom atom(const char* name) { return XInternAtom(display_, name, False); }

    long middle() {
        XWindowAttributes attributes{};
        XGetWindowAttributes(display_, target_, &attributes);
        int x = 0;
        int y = 0;
        Window child = None;
        XTranslateCoordinates(display_, target_, attributes.root, attributes.width / 2, attributes.height / 2,
                              &x, &y, &child);
        return static_cast<long>(x) << 16 | y;
    }

    // The first of the five numbers is always the source.
    void send(const char* type, const std::array<long, 4>& numbers) {
        XEvent event{};
        event.xclient.type = ClientMessage;
        event.xclient.window = target_;
        event.xclient.message_type = atom(type);
        event.xclient.format = 32;
        event.xclient.data.l[0] = static_cast<long>(source_);
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            event.xclient.data.l[i + 1] = numbers[i];
        }
        XSendEvent(display_, target_, False, NoEventMask, &event);
        XFlush(display_);
    }

    void answer(const XSelectionRequestEvent& request) {
        XChangeProperty(display_, request.requestor, request.property, request.target, 8, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(uris_.data()), static_cast<int>(uris_.size()));
        XEvent event{};
        event.xselection.type = SelectionNotify;
        event.xselection.requestor = request.requestor;
        event.xselection.selection = request.selection;
        event.xselection.target = request.target;
        event.xselection.property = request.property;
        event.xselection.time = request.time;
        XSendEvent(display_, request.requestor, False, NoEventMask, &event);
        XFlush(display_);
    }

    bool wait_for(const char* type) {
        const Atom wanted = atom(type);
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(15);
        while (std::chrono::steady_clock::now() < end) {
            if (XPending(display_) == 0) {
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
                continue;
            }
            XEvent event;
            XNextEvent(display_, &event);
            if (event.type == SelectionRequest) {
                answer(event.xselectionrequest);
            } else if (event.type == ClientMessage && event.xclient.message_type == wanted) {
                return true;
            }
        }
        std::cerr << "drop_files: no " << type << "\n";
        return false;
    }

    Display* display_;
    Window target_;
    std::string uris_;
    Window source_;
};

} // namespace

int main(int count, char** arguments) {
    Display* const display = XOpenDisplay(nullptr);
    if (display == nullptr || count < 3) {
        std::cerr << "usage, on an X server: drop_files WINDOW URI...\n";
        return EXIT_FAILURE;
    }
    std::string uris;
    for (int i = 2; i < count; ++i) {
        uris += std::string(arguments[i]) + "\r\n";
    }
    const bool is_taken = Drop(display, std::strtoul(arguments[1], nullptr, 0), uris).run();
    XCloseDisplay(display);
    return is_taken ? EXIT_SUCCESS : EXIT_FAILURE;
}
