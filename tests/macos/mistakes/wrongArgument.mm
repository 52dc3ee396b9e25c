// A C string where an object is meant.
#import <AppKit/AppKit.h>

void colour(NSWindow* window) {
    window.backgroundColor = "grey";  // expected-error {{from incompatible type}}
}
