#include "platform/NativeBundle.h"

#include <system_error>

#include "platform/linux/PrefixBundle.h"

namespace lumo {

std::unique_ptr<Bundle> makeNativeBundle() {
    // The link tells the file itself, also for a program that was started by a link to it or by a bare name.
    std::error_code unknown;
    return std::make_unique<PrefixBundle>(std::filesystem::read_symlink("/proc/self/exe", unknown));
}

}  // namespace lumo
