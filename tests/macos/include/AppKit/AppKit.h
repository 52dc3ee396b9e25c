// AppKit: the application, its menu and its window, symbols drawn into memory, the desktop around them, and what the
// user wishes of all of them.
#pragma once

#include <CoreGraphics/CoreGraphics.h>
#include <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class NSMenu, NSView;

@interface NSMenuItem : NSObject
- (instancetype)initWithTitle:(NSString*)string
                       action:(nullable SEL)selector
                keyEquivalent:(NSString*)charCode __attribute__((objc_designated_initializer));
@property(nullable, strong) NSMenu* submenu;
@end

@interface NSMenu : NSObject
- (instancetype)initWithTitle:(NSString*)title __attribute__((objc_designated_initializer));
- (void)addItem:(NSMenuItem*)newItem;
@end

typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
    NSApplicationActivationPolicyRegular,
    NSApplicationActivationPolicyAccessory,
    NSApplicationActivationPolicyProhibited,
};

@interface NSApplication : NSObject
@property(nullable, strong) NSMenu* mainMenu;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy API_AVAILABLE(macos(10.6));
- (void)activateIgnoringOtherApps:(BOOL)flag;
- (void)activate API_AVAILABLE(macos(14.0));
- (void)terminate:(nullable id)sender;
@end
extern "C" NSApplication* _Null_unspecified NSApp;
extern "C" NSNotificationName NSApplicationDidBecomeActiveNotification;

@interface NSRunningApplication : NSObject
@end

@interface NSColor : NSObject
+ (NSColor*)colorWithWhite:(CGFloat)white alpha:(CGFloat)alpha API_AVAILABLE(macos(10.9));
@end

@interface NSImage : NSObject
+ (nullable instancetype)imageWithSystemSymbolName:(NSString*)name
                          accessibilityDescription:(nullable NSString*)description API_AVAILABLE(macos(11.0));
@property NSSize size;
- (void)drawInRect:(NSRect)rect API_AVAILABLE(macos(10.9));
@end

@interface NSGraphicsContext : NSObject
+ (NSGraphicsContext*)graphicsContextWithCGContext:(CGContextRef)graphicsPort
                                           flipped:(BOOL)initialFlippedState API_AVAILABLE(macos(10.10));
@property(class, nullable, strong) NSGraphicsContext* currentContext;
+ (void)saveGraphicsState;
+ (void)restoreGraphicsState;
@end

typedef NS_OPTIONS(NSUInteger, NSWindowStyleMask) {
    NSWindowStyleMaskTitled = 1 << 0,
    NSWindowStyleMaskClosable = 1 << 1,
    NSWindowStyleMaskMiniaturizable = 1 << 2,
    NSWindowStyleMaskResizable = 1 << 3,
    NSWindowStyleMaskFullSizeContentView API_AVAILABLE(macos(10.10)) = 1 << 15,
};

typedef NS_ENUM(NSInteger, NSWindowTitleVisibility) {
    NSWindowTitleVisible = 0,
    NSWindowTitleHidden = 1,
};

@interface NSWindow : NSObject
@property(readonly) NSRect frame;
- (void)setFrame:(NSRect)frameRect display:(BOOL)flag;
- (NSRect)frameRectForContentRect:(NSRect)contentRect;
- (NSRect)contentRectForFrameRect:(NSRect)frameRect;
@property NSWindowStyleMask styleMask;
@property NSWindowTitleVisibility titleVisibility API_AVAILABLE(macos(10.10));
@property BOOL titlebarAppearsTransparent API_AVAILABLE(macos(10.10));
@property(getter=isMovableByWindowBackground) BOOL movableByWindowBackground;
@property(null_resettable, copy) NSColor* backgroundColor;
@end

@interface NSView : NSObject
@property(nullable, readonly, unsafe_unretained) NSWindow* window;
@end

API_AVAILABLE(macos(10.15))
@interface NSWorkspaceOpenConfiguration : NSObject
+ (instancetype)configuration;
@end

@interface NSWorkspace : NSObject
@property(class, readonly, strong) NSWorkspace* sharedWorkspace;
- (BOOL)openURL:(NSURL*)url;
- (void)openApplicationAtURL:(NSURL*)applicationURL
               configuration:(NSWorkspaceOpenConfiguration*)configuration
           completionHandler:(nullable void (^)(NSRunningApplication* _Nullable app,
                                                NSError* _Nullable error))completionHandler API_AVAILABLE(macos(10.15));
@end

@interface NSWorkspace (NSWorkspaceAccessibilityDisplay)
@property(readonly) BOOL accessibilityDisplayShouldReduceMotion API_AVAILABLE(macos(10.12));
@end

NS_ASSUME_NONNULL_END
