// Nothing, where AppKit insists on a text.
#import <AppKit/AppKit.h>

void clear(NSMenu* menu) {
    [menu addItem:nil];  // expected-error {{null passed to a callee that requires a non-null argument}}
}
