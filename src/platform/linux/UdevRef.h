// libudev's reference-counted objects, released when they go out of scope. Main thread only: libudev has no locks.
#pragma once

#include <libudev.h>

#include <memory>

namespace lumo {

struct UdevRelease {
    void operator()(udev* object) const { udev_unref(object); }
    void operator()(udev_device* object) const { udev_device_unref(object); }
    void operator()(udev_enumerate* object) const { udev_enumerate_unref(object); }
    void operator()(udev_monitor* object) const { udev_monitor_unref(object); }
    void operator()(udev_queue* object) const { udev_queue_unref(object); }
};

using UdevRef = std::unique_ptr<udev, UdevRelease>;
using UdevDeviceRef = std::unique_ptr<udev_device, UdevRelease>;
using UdevEnumerateRef = std::unique_ptr<udev_enumerate, UdevRelease>;
using UdevMonitorRef = std::unique_ptr<udev_monitor, UdevRelease>;
using UdevQueueRef = std::unique_ptr<udev_queue, UdevRelease>;

}  // namespace lumo
