// The host's threads, with the one function that macOS declares differently: it names the calling thread only.
#pragma once

#define pthread_setname_np lumo_host_setname_np
#include_next <pthread.h>
#undef pthread_setname_np

#ifdef __APPLE__
extern "C" int pthread_setname_np(const char* name);
#else
// The host's own function of that name takes two arguments; the recording double has a name of its own.
extern "C" int pthread_setname_np(const char* name) __asm__("lumo_recording_setname_np");
#endif
