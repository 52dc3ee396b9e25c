#include "platform/IoThread.h"

#include <pthread.h>
#include <pthread/qos.h>

namespace lumo {

void prepareIoThread(std::string_view label) {
    constexpr std::size_t kLongestName = 63;  // a longer one is refused whole
    constexpr int kHighestWithinClass = 0;
    // Neither can be worth a stop: without them the reports still go out.
    pthread_setname_np(threadName(label, kLongestName).c_str());
    pthread_set_qos_class_self_np(QOS_CLASS_USER_INITIATED, kHighestWithinClass);
}

}  // namespace lumo
