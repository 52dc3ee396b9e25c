// The attributes by which clang checks ownership, bridging and null; nothing to a compiler without them.
#pragma once

#ifdef __clang__
#define CF_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define CF_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")
#define CF_BRIDGED_TYPE(type) __attribute__((objc_bridge(type)))
#define CF_RETURNS_RETAINED __attribute__((cf_returns_retained))
#define CF_ENUM(type, name) \
    enum name : type name;  \
    enum name : type
#else
#define CF_ASSUME_NONNULL_BEGIN
#define CF_ASSUME_NONNULL_END
#define CF_BRIDGED_TYPE(type)
#define CF_RETURNS_RETAINED
#define CF_ENUM(type, name) enum name : type
#define _Nonnull
#define _Nullable
#define _Null_unspecified
#endif

// In C++ the options of a set stay plain numbers, so that they combine with "|".
#define CF_OPTIONS(type, name) \
    type name;                 \
    enum : type
