// What a function with Create in its name returned belongs to the caller, who forgets it.
#include <ApplicationServices/ApplicationServices.h>

Boolean isTrustedWithPrompt() {
    const void* key = kAXTrustedCheckOptionPrompt;
    const void* value = kCFBooleanTrue;
    // expected-error@+1 {{Potential leak of an object stored into 'options'}}
    CFDictionaryRef options = CFDictionaryCreate(kCFAllocatorDefault, &key, &value, 1, &kCFTypeDictionaryKeyCallBacks,
                                                 &kCFTypeDictionaryValueCallBacks);
    return AXIsProcessTrustedWithOptions(options);
}
