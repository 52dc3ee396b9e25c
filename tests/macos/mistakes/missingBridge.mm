// A pointer becomes an object whose life ARC is to keep, without a word on who owns it.
#import <AppKit/AppKit.h>

NSView* viewOf(void* pointer) {
    // expected-error@+5 {{requires a bridged cast}}

    // expected-note@+3 {{use __bridge to convert directly}}

    // expected-note@+1 {{use __bridge_transfer to transfer ownership}}
    return (NSView*)pointer;
}
