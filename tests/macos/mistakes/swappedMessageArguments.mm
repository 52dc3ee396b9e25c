// The observed object and the queue have changed places.
#import <Foundation/Foundation.h>

void observe(NSNotificationName name, NSNotification* object) {
    // expected-error@+3 {{cannot initialize a parameter of type 'NSOperationQueue * _Nullable'}}
    [NSNotificationCenter.defaultCenter addObserverForName:name
                                                    object:NSOperationQueue.mainQueue
                                                     queue:object
                                                usingBlock:^(NSNotification*){
                                                }];
}
// expected-note@Foundation/Foundation.h:* {{passing argument to parameter 'queue' here}}
