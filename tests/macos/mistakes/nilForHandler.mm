// Nobody to take the answer; the system insists on somebody.
#import <AVFoundation/AVFoundation.h>

void ask() {
    // expected-error@+1 {{null passed to a callee that requires a non-null argument}}
    [AVCaptureDevice requestAccessForMediaType:AVMediaTypeAudio completionHandler:nil];
}
