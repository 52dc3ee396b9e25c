// Our own declarations of what the macOS layer uses, so that it is compiled where no Mac is at hand. They hold
// what public reference pages and published sources agree on, and no more.
#pragma once

#define TARGET_OS_MAC 1
#define TARGET_OS_OSX 1
#define TARGET_OS_IPHONE 0
#define TARGET_OS_IOS 0
#define TARGET_OS_TV 0
#define TARGET_OS_WATCH 0
#define TARGET_OS_MACCATALYST 0
#define TARGET_OS_SIMULATOR 0
#define TARGET_OS_UNIX 0
#define TARGET_CPU_64BIT 1
#ifdef __aarch64__
#define TARGET_CPU_ARM64 1
#define TARGET_CPU_X86_64 0
#else
#define TARGET_CPU_ARM64 0
#define TARGET_CPU_X86_64 1
#endif
