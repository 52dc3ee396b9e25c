// Stands between the HID layer and libudev for what the mocked kernel cannot do: lose events as a full socket does
// (the mock's own queue ends the process when it is full), and have a udev that is still at work.
#pragma once

namespace lumo::test {

/// The next read of a monitor drops everything that has arrived and fails with ENOBUFS.
void loseArrivedEvents();

/// From now on there is no monitor to be had, or there is again.
void refuseMonitors(bool refuse);

/// Whether udev runs, and whether it is done with the devices that are there. At first both are so.
void letUdevRun(bool runs);
void letUdevBeDone(bool done);

}  // namespace lumo::test
