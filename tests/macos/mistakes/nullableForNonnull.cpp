// The set is NULL as long as no device has matched, and nobody has looked.
#include <IOKit/hid/IOHIDManager.h>

CFIndex countOf(CFSetRef _Nullable set) {
    return CFSetGetCount(set);  // expected-error {{implicit conversion from nullable pointer}}
}
