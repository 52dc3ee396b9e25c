// A message that no menu understands.
#import <AppKit/AppKit.h>

void fill(NSMenu* menu, NSMenuItem* item) {
    // expected-error@+1 {{no visible @interface for 'NSMenu' declares the selector 'addMenuItem:'}}
    [menu addMenuItem:item];
}
