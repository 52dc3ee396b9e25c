// The microphone asked for as from macOS 14 on; before, there is no such class.
#import <AVFoundation/AVFoundation.h>

void ask() {
    // expected-error@+2 {{'AVAudioApplication' is only available on macOS 14.0 or newer}}
    // expected-note@+1 {{enclose 'AVAudioApplication' in an @available check to silence this warning}}
    [AVAudioApplication requestRecordPermissionWithCompletionHandler:^(BOOL){
    }];
}
// expected-note@AVFoundation/AVFoundation.h:* {{marked as being introduced in macOS 14.0}}
