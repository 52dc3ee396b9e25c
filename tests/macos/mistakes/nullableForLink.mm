// A text that may be nothing, made into a link.
#import <Foundation/Foundation.h>

NSURL* _Nullable linkOf(NSString* _Nullable text) {
    return [NSURL URLWithString:text];  // expected-error {{implicit conversion from nullable pointer}}
}
