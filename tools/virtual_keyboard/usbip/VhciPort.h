// Where USB/IP devices are plugged: the ports of the kernel's virtual host controller.
#pragma once

#include <istream>
#include <optional>

namespace lumo::vk {

/// The first free high-speed port in the text of vhci_hcd's "status" file; full-speed devices go there too.
/// Absent when all are taken or the text is none.
[[nodiscard]] std::optional<unsigned> firstFreePort(std::istream& status);

/// Gives the kernel the host's end of a stream socket; it keeps its own reference. Throws std::system_error
/// when vhci_hcd is not loaded, has no free port, or refuses.
void attachToVhci(int hostSocket);

}  // namespace lumo::vk
