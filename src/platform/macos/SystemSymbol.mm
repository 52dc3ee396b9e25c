#include "platform/macos/SystemSymbol.h"

#import <AppKit/AppKit.h>

#include <algorithm>
#include <cstdint>

#include "platform/macos/CfRef.h"
#include "platform/macos/NsText.h"

namespace lumo {
namespace {

NSImage* _Nullable findSymbol(const std::string& name) {
    NSString* text = nsText(name);
    return text ? [NSImage imageWithSystemSymbolName:text accessibilityDescription:nil] : nil;
}

CfRef<CGContextRef> makeContext(const SymbolPixels& target) {
    constexpr std::size_t kBitsPerComponent = 8;
    constexpr auto kLayout = std::uint32_t{kCGImageAlphaPremultipliedFirst} | std::uint32_t{kCGBitmapByteOrder32Little};
    const auto colors = CfRef<CGColorSpaceRef>::adopt(CGColorSpaceCreateDeviceRGB());
    return CfRef<CGContextRef>::adopt(CGBitmapContextCreate(
        target.bytes, target.width, target.height, kBitsPerComponent, target.bytesPerLine, colors.get(), kLayout));
}

// The symbols are wider or narrower than their frame, each in its own way.
NSRect centred(NSSize symbol, const SymbolPixels& target) {
    const auto width = static_cast<CGFloat>(target.width);
    const auto height = static_cast<CGFloat>(target.height);
    const CGFloat scale = std::min(width / symbol.width, height / symbol.height);
    const NSSize size{symbol.width * scale, symbol.height * scale};
    return {{(width - size.width) / 2, (height - size.height) / 2}, size};
}

}  // namespace

bool drawSystemSymbol(const std::string& name, const SymbolPixels& target) {
    @autoreleasepool {
        NSImage* symbol = findSymbol(name);
        if (!symbol) return false;
        const auto context = makeContext(target);
        if (!context) return false;
        [NSGraphicsContext saveGraphicsState];
        NSGraphicsContext.currentContext = [NSGraphicsContext graphicsContextWithCGContext:context.get() flipped:NO];
        [symbol drawInRect:centred(symbol.size, target)];
        [NSGraphicsContext restoreGraphicsState];
        return true;
    }
}

}  // namespace lumo
