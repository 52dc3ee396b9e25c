// Foundation, as far as a menu, a window, a symbol and the bundle need it.
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
typedef CGSize NSSize;

NS_ASSUME_NONNULL_BEGIN

__attribute__((objc_root_class))
@interface NSObject
+ (instancetype)alloc;
- (instancetype)init;
@end

typedef NSUInteger NSStringEncoding;
enum : NSStringEncoding { NSUTF8StringEncoding = 4 };

@interface NSString : NSObject
- (nullable instancetype)initWithBytes:(const void*)bytes length:(NSUInteger)len encoding:(NSStringEncoding)encoding;
@property(readonly) NSUInteger length;
@property(nullable, readonly) const char* UTF8String __attribute__((objc_returns_inner_pointer));
@end

// The compiler lays string literals out as objects of this class.
@interface NSConstantString : NSString
@end

@interface NSBundle : NSObject
@property(class, readonly, strong) NSBundle* mainBundle;
@property(nullable, readonly, copy) NSString* resourcePath;
- (nullable NSString*)pathForResource:(nullable NSString*)name ofType:(nullable NSString*)ext;
@end

NS_ASSUME_NONNULL_END
