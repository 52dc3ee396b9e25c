// Answers of IOKit.
#pragma once

typedef int IOReturn;  // kern_return_t
#define kIOReturnSuccess 0
#define kIOReturnNotPermitted ((IOReturn)0xe00002e2)
