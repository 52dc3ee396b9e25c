// What a function with Copy in its name returned belongs to the caller, who forgets it.
#include <IOKit/hid/IOHIDManager.h>

CFIndex countOf(IOHIDManagerRef manager) {
    // expected-error@+1 {{Potential leak of an object stored into 'set'}}
    CFSetRef set = IOHIDManagerCopyDevices(manager);
    return set ? CFSetGetCount(set) : 0;
}
