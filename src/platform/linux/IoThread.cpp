#include <pthread.h>

#include "platform/IoThread.h"

namespace lumo {

void prepareIoThread(std::string_view label) {
    constexpr std::size_t kLongestName = 15;
    pthread_setname_np(pthread_self(), threadName(label, kLongestName).c_str());
}

}  // namespace lumo
