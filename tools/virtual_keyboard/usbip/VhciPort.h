// Where USB/IP devices are plugged: the ports of the kernel's virtual host controller.
#pragma once

#include <istream>
#include <optional>
#include <string>
#include <vector>

namespace lumo::vk {

/// The free high-speed ports in the text of vhci_hcd's "status" file; full-speed devices go there too. Empty when all
/// are taken or the text is none.
[[nodiscard]] std::vector<unsigned> freePorts(std::istream& status);

/// True as long as a device of that port stands in the controller's folder in sysfs. The kernel frees a port before it
/// puts the device away, and takes one that is plugged in between for the same.
[[nodiscard]] bool holdsDevice(const std::string& controller, unsigned port);

/// A keyboard keeps the port that it was plugged into first, as one that is plugged again into the same socket: only
/// so has the kernel put the old device away before the new one comes.
class VhciPort final {
public:
    /// Gives the kernel the host's end of a stream socket; it keeps its own reference. Waits up to 5 s for the port
    /// to be free again, and then takes another. Throws std::system_error when vhci_hcd is not loaded, has no free
    /// port, or refuses.
    void attach(int hostSocket);

private:
    [[nodiscard]] unsigned freeNumber() const;

    std::optional<unsigned> m_number;
};

}  // namespace lumo::vk
