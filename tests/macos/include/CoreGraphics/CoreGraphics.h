// CoreGraphics: pixels in memory to draw into, and who may listen to keys.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <CoreGraphics/CGGeometry.h>
#include <stddef.h>

CF_ASSUME_NONNULL_BEGIN
extern "C" {

typedef struct CGColorSpace* CGColorSpaceRef;
typedef struct CGContext* CGContextRef;

CGColorSpaceRef _Nullable CGColorSpaceCreateDeviceRGB(void) CF_RETURNS_RETAINED;

typedef CF_ENUM(uint32_t, CGImageAlphaInfo) {
    kCGImageAlphaNone,
    kCGImageAlphaPremultipliedLast,
    kCGImageAlphaPremultipliedFirst,
};
typedef CF_OPTIONS(uint32_t, CGBitmapInfo) {
    kCGBitmapByteOrder32Little = 2 << 12,
    kCGBitmapByteOrder32Big = 4 << 12,
};
CGContextRef _Nullable CGBitmapContextCreate(void* _Nullable data, size_t width, size_t height, size_t bitsPerComponent,
                                             size_t bytesPerRow, CGColorSpaceRef _Nullable space,
                                             uint32_t bitmapInfo) CF_RETURNS_RETAINED;

bool CGPreflightListenEventAccess(void) API_AVAILABLE(macos(10.15));
bool CGRequestListenEventAccess(void) API_AVAILABLE(macos(10.15));

}  // extern "C"
CF_ASSUME_NONNULL_END
