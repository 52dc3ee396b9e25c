// The name of an option as an object, without a bridge between the two worlds.
#import <ApplicationServices/ApplicationServices.h>
#import <Foundation/Foundation.h>

NSString* optionName() {
    return kAXTrustedCheckOptionPrompt;  // expected-error {{cannot initialize return object of type 'NSString *'}}
}
