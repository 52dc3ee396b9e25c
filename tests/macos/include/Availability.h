// Versions, and the attributes that let the compiler tell a call that is too new for a user's macOS.
#pragma once

#include "AvailabilityMacros.h"

#define __MAC_10_14 101400
#define __MAC_10_15 101500
#define __MAC_11_0 110000
#define __MAC_12_0 120000
#define __MAC_OS_X_VERSION_MIN_REQUIRED __ENVIRONMENT_MAC_OS_X_VERSION_MIN_REQUIRED__
#define __MAC_OS_X_VERSION_MAX_ALLOWED __MAC_12_0
