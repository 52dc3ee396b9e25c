// A question that no capture device is asked: the handler's name is misspelt.
#import <AVFoundation/AVFoundation.h>

void ask() {
    // expected-error@+1 {{no known class method for selector 'requestAccessForMediaType:completion:'}}
    [AVCaptureDevice requestAccessForMediaType:AVMediaTypeAudio
                                    completion:^(BOOL){
                                    }];
}
