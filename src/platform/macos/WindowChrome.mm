#include "platform/macos/WindowChrome.h"

#import <AppKit/AppKit.h>

namespace lumo {
namespace {

// AppKit keeps the frame and hands the title bar's height to the content; the content is what was asked for.
void spreadContentBelowTitleBar(NSWindow* window) {
    if (window.styleMask & NSWindowStyleMaskFullSizeContentView) return;
    const NSRect content = [window contentRectForFrameRect:window.frame];
    window.styleMask = window.styleMask | NSWindowStyleMaskFullSizeContentView;
    [window setFrame:[window frameRectForContentRect:content] display:NO];
}

}  // namespace

void applyWindowChrome(std::uintptr_t nsView) {
    constexpr CGFloat kBackgroundWhite = 0.1;
    auto* view = (__bridge NSView*)reinterpret_cast<void*>(nsView);
    NSWindow* window = view.window;
    if (!window) return;
    // The style mask first: AppKit lays the title bar out anew with it.
    spreadContentBelowTitleBar(window);
    window.titleVisibility = NSWindowTitleHidden;
    window.titlebarAppearsTransparent = YES;
    window.movableByWindowBackground = YES;
    window.backgroundColor = [NSColor colorWithWhite:kBackgroundWhite alpha:1.0];
}

}  // namespace lumo
