#include <pthread.h>

#include <string>

#include "platform/IoThread.h"

namespace lumo {

void prepareIoThread(std::string_view label) {
    constexpr std::size_t kLongestName = 15;
    // The end of a reverse-domain label is what tells it from others.
    const std::string name(label.size() > kLongestName ? label.substr(label.size() - kLongestName) : label);
    pthread_setname_np(pthread_self(), name.c_str());
}

}  // namespace lumo
