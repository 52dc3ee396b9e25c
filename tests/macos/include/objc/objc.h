// The types of the Objective-C runtime that the compiler itself does not bring.
#pragma once

#ifdef __aarch64__
typedef bool BOOL;
#else
typedef signed char BOOL;
#endif
#define YES __objc_yes
#define NO __objc_no
#define nil nullptr
