#ifndef _WIN32

#include "base/end_signals.h"

#include <array>
#include <atomic>
#include <csignal>

namespace quadrelle {

namespace {

using Handler = void (*)(int);

constexpr std::array ends{SIGTERM, SIGINT, SIGHUP};

std::atomic<bool> has_come = false;
std::atomic<Handler> ask_to_quit = nullptr;

static_assert(std::atomic<bool>::is_always_lock_free && std::atomic<Handler>::is_always_lock_free);

void note_end(int signal) {
    has_come = true;
    if (const Handler ask = ask_to_quit) {
        ask(SIGTERM);
    }
    // The library puts its own in the place of this one.
    std::signal(SIGTERM, note_end);
    std::signal(signal, note_end);
}

Handler handler_of(int signal) {
    struct sigaction action = {};
    return sigaction(signal, nullptr, &action) == 0 ? action.sa_handler : SIG_DFL;
}

} // namespace

void catch_end_signals() {
    std::signal(SIGXFSZ, SIG_IGN);
    const Handler library = handler_of(SIGTERM);
    if (library == SIG_DFL || library == SIG_IGN) {
        return;
    }
    if (library != note_end) {
        ask_to_quit = library;
    }
    for (const int signal : ends) {
        // Somebody wants the program to outlive it.
        if (handler_of(signal) != SIG_IGN) {
            std::signal(signal, note_end);
        }
    }
}

void release_end_signals() {
    for (const int signal : ends) {
        if (handler_of(signal) == note_end) {
            std::signal(signal, SIG_DFL);
        }
    }
}

bool take_end_signal() {
    return has_come.exchange(false);
}

void take_no_signals() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);
}

} // namespace quadrelle

#endif
