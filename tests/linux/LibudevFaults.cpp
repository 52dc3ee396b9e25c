#include "linux/LibudevFaults.h"

#include <dlfcn.h>
#include <libudev.h>

#include <cerrno>
#include <utility>

namespace {

bool g_lose = false;
bool g_refuse = false;
bool g_runs = true;
bool g_done = true;

template <typename F>
F* next(const char* name) {
    return reinterpret_cast<F*>(dlsym(RTLD_NEXT, name));  // POSIX's way; there is no other to a function
}

}  // namespace

// The program's own definitions win over the shared library's.
extern "C" udev_device* udev_monitor_receive_device(udev_monitor* monitor) {
    const auto receive = next<decltype(udev_monitor_receive_device)>("udev_monitor_receive_device");
    if (!std::exchange(g_lose, false)) return receive(monitor);
    while (udev_device* const lost = receive(monitor)) udev_device_unref(lost);
    errno = ENOBUFS;
    return nullptr;
}

extern "C" udev_monitor* udev_monitor_new_from_netlink(udev* context, const char* group) {
    if (g_refuse) return nullptr;
    return next<decltype(udev_monitor_new_from_netlink)>("udev_monitor_new_from_netlink")(context, group);
}

extern "C" int udev_device_get_is_initialized(udev_device* /*device*/) { return g_done ? 1 : 0; }

extern "C" int udev_queue_get_udev_is_active(udev_queue* /*queue*/) { return g_runs ? 1 : 0; }

namespace lumo::test {

void loseArrivedEvents() { g_lose = true; }

void refuseMonitors(bool refuse) { g_refuse = refuse; }

void letUdevRun(bool runs) { g_runs = runs; }

void letUdevBeDone(bool done) { g_done = done; }

}  // namespace lumo::test
