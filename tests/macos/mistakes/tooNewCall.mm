// A call of macOS 14, which on the oldest macOS we run on ends the program.
#import <AppKit/AppKit.h>

void activate() {
    // expected-error@+2 {{'activate' is only available on macOS 14.0 or newer}}
    // expected-note@+1 {{enclose 'activate' in an @available check to silence this warning}}
    [NSApp activate];
}
// expected-note@AppKit/AppKit.h:* {{'activate' has been marked as being introduced in macOS 14.0}}
