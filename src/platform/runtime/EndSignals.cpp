#include "platform/runtime/EndSignals.h"

// Signals are POSIX alone. On Windows the end of a session comes as a window message, which the toolkit turns
// into its own session request; there is nothing to do here.
#ifndef _WIN32

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace akarix {
namespace {

std::array<int, 2> ends{-1, -1};

// A handler may do next to nothing: whatever the signal interrupted stands half-way.
void PassOn(int) {
    const int before = errno;
    const char byte = 1;
    [[maybe_unused]] const auto written = write(ends[1], &byte, 1);
    errno = before;
}

bool Install() {
    if (pipe(ends.data()) != 0) return false;
    for (const int end : ends) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
        fcntl(end, F_SETFL, O_NONBLOCK);  // a full pipe has told enough
    }
    struct sigaction action {};
    action.sa_handler = PassOn;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    return sigaction(SIGTERM, &action, nullptr) == 0 && sigaction(SIGHUP, &action, nullptr) == 0;
}

}  // namespace

int EndSignals() {
    static const bool installed = Install();
    return installed ? ends[0] : -1;
}

bool TakeEndSignals() {
    bool any = false;
    for (char byte = 0; read(ends[0], &byte, 1) == 1;)
        any = true;
    return any;
}

}  // namespace akarix

#else

namespace akarix {

int EndSignals() {
    return -1;
}

bool TakeEndSignals() {
    return false;
}

}  // namespace akarix

#endif
