// API_AVAILABLE(macos(10.15)) as Apple's headers write it.
#pragma once

#include <Availability.h>

#ifdef __APPLE__
#define LUMO_PLATFORM_macos(version) macos, introduced = version
#define LUMO_AVAILABLE(platform) __attribute__((availability(platform)))
#define API_AVAILABLE(platform) LUMO_AVAILABLE(LUMO_PLATFORM_##platform)
#else
#define API_AVAILABLE(platform)
#endif
