// A completion handler whose application and error have changed places.
#import <AppKit/AppKit.h>

void start(NSURL* program, NSWorkspaceOpenConfiguration* configuration) {
    // expected-error@+3 {{with an rvalue of type 'void (^)(NSError *__strong, NSRunningApplication *__strong)'}}
    [NSWorkspace.sharedWorkspace openApplicationAtURL:program
                                        configuration:configuration
                                    completionHandler:^(NSError*, NSRunningApplication*){
                                    }];
}
// expected-note@AppKit/AppKit.h:* {{passing argument to parameter 'completionHandler' here}}
