// Foundation, as far as a menu and a window need it.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <CoreGraphics/CGGeometry.h>
#include <objc/objc.h>

#define NS_ASSUME_NONNULL_BEGIN CF_ASSUME_NONNULL_BEGIN
#define NS_ASSUME_NONNULL_END CF_ASSUME_NONNULL_END
#define NS_ENUM(type, name) CF_ENUM(type, name)
#define NS_OPTIONS(type, name) CF_OPTIONS(type, name)

typedef long NSInteger;
typedef unsigned long NSUInteger;
typedef CGRect NSRect;

NS_ASSUME_NONNULL_BEGIN

__attribute__((objc_root_class))
@interface NSObject
+ (instancetype)alloc;
- (instancetype)init;
@end

@interface NSString : NSObject
@property(readonly) NSUInteger length;
@end

// The compiler lays string literals out as objects of this class.
@interface NSConstantString : NSString
@end

NS_ASSUME_NONNULL_END
