// Quality of service of the calling thread.
#pragma once

#include <os/availability.h>
#include <sys/qos.h>

extern "C" int pthread_set_qos_class_self_np(qos_class_t qosClass, int relativePriority) API_AVAILABLE(macos(10.10));
