// A bridge between a text and a menu.
#import <AppKit/AppKit.h>

NSMenu* menuOf(CFStringRef text) {
    return (__bridge NSMenu*)text;  // expected-error {{bridges to NSString, not 'NSMenu'}}
}
