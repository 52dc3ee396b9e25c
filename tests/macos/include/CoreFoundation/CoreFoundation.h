// CoreFoundation: reference counts, collections, strings, numbers and the main run loop.
#pragma once

#include <TargetConditionals.h>
#include <os/availability.h>
#include <stdint.h>

#include "CFAttributes.h"

CF_ASSUME_NONNULL_BEGIN
extern "C" {

typedef unsigned char Boolean;
typedef unsigned char UInt8;
typedef uint32_t UInt32;
typedef unsigned long CFTypeID;
typedef signed long CFIndex;
typedef const void* CFTypeRef;
typedef struct {
    CFIndex location;
    CFIndex length;
} CFRange;
static inline CFRange CFRangeMake(CFIndex location, CFIndex length) { return CFRange{location, length}; }

typedef const struct __CFAllocator* CFAllocatorRef;
typedef const struct CF_BRIDGED_TYPE(NSString) __CFString* CFStringRef;
typedef const struct CF_BRIDGED_TYPE(NSNumber) __CFNumber* CFNumberRef;
typedef const struct CF_BRIDGED_TYPE(NSNumber) __CFBoolean* CFBooleanRef;
typedef const struct CF_BRIDGED_TYPE(NSArray) __CFArray* CFArrayRef;
typedef const struct CF_BRIDGED_TYPE(NSSet) __CFSet* CFSetRef;
typedef const struct CF_BRIDGED_TYPE(NSDictionary) __CFDictionary* CFDictionaryRef;
typedef struct CF_BRIDGED_TYPE(id) __CFRunLoop* CFRunLoopRef;
typedef CFStringRef CFRunLoopMode;
extern const CFAllocatorRef _Null_unspecified kCFAllocatorDefault;

CFTypeRef CFRetain(CFTypeRef object);
void CFRelease(CFTypeRef object);
Boolean CFEqual(CFTypeRef one, CFTypeRef other);
CFTypeID CFGetTypeID(CFTypeRef object);

typedef UInt32 CFStringEncoding;
enum : CFStringEncoding { kCFStringEncodingUTF8 = 0x08000100 };
#ifdef __APPLE__
#define CFSTR(text) ((CFStringRef)__builtin___CFStringMakeConstantString("" text ""))
#else
CFStringRef __CFStringMakeConstantString(const char* text);
#define CFSTR(text) __CFStringMakeConstantString("" text "")
#endif
CFTypeID CFStringGetTypeID(void);
CFIndex CFStringGetLength(CFStringRef text);
CFIndex CFStringGetBytes(CFStringRef text, CFRange range, CFStringEncoding encoding, UInt8 lossByte,
                         Boolean isExternalRepresentation, UInt8* _Nullable buffer, CFIndex maxBufLen,
                         CFIndex* _Nullable usedBufLen);

extern const CFBooleanRef _Null_unspecified kCFBooleanTrue;
extern const CFBooleanRef _Null_unspecified kCFBooleanFalse;

enum CFNumberType : CFIndex { kCFNumberSInt32Type = 3, kCFNumberSInt64Type = 4, kCFNumberDoubleType = 13 };
CFTypeID CFNumberGetTypeID(void);
CFNumberRef _Null_unspecified CFNumberCreate(CFAllocatorRef _Nullable allocator, CFNumberType type,
                                             const void* value) CF_RETURNS_RETAINED;
Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void* value);

// The callbacks of the collections are opaque here: ours only ever take their addresses.
typedef struct CFArrayCallBacks CFArrayCallBacks;
typedef struct CFDictionaryKeyCallBacks CFDictionaryKeyCallBacks;
typedef struct CFDictionaryValueCallBacks CFDictionaryValueCallBacks;
extern const CFArrayCallBacks kCFTypeArrayCallBacks;
extern const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks;
extern const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks;
CFArrayRef _Null_unspecified CFArrayCreate(CFAllocatorRef _Nullable allocator,
                                           const void* _Nullable* _Null_unspecified values, CFIndex count,
                                           const CFArrayCallBacks* _Nullable callBacks) CF_RETURNS_RETAINED;
CFDictionaryRef _Null_unspecified CFDictionaryCreate(
    CFAllocatorRef _Nullable allocator, const void* _Nullable* _Null_unspecified keys,
    const void* _Nullable* _Null_unspecified values, CFIndex count,
    const CFDictionaryKeyCallBacks* _Nullable keyCallBacks,
    const CFDictionaryValueCallBacks* _Nullable valueCallBacks) CF_RETURNS_RETAINED;
CFIndex CFSetGetCount(CFSetRef set);
void CFSetGetValues(CFSetRef set, const void* _Nullable* _Null_unspecified values);

extern const CFStringRef kCFPreferencesCurrentApplication;
Boolean CFPreferencesAppSynchronize(CFStringRef applicationID);

extern const CFRunLoopMode kCFRunLoopDefaultMode;
CFRunLoopRef CFRunLoopGetMain(void);

}  // extern "C"
CF_ASSUME_NONNULL_END
