// The action of a menu item, misspelt: it would be a menu item that does nothing.
#import <AppKit/AppKit.h>

SEL quit() {
    return @selector(terminateNow:);  // expected-error {{undeclared selector 'terminateNow:'}}
}
