// AVFoundation: who may hear the microphone.
#pragma once

#include <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* AVMediaType;
extern "C" const AVMediaType AVMediaTypeAudio API_AVAILABLE(macos(10.7));

typedef NS_ENUM(NSInteger, AVAuthorizationStatus) {
    AVAuthorizationStatusNotDetermined = 0,
    AVAuthorizationStatusRestricted = 1,
    AVAuthorizationStatusDenied = 2,
    AVAuthorizationStatusAuthorized = 3,
} API_AVAILABLE(macos(10.14));

@interface AVCaptureDevice : NSObject
+ (AVAuthorizationStatus)authorizationStatusForMediaType:(AVMediaType)mediaType API_AVAILABLE(macos(10.14));
+ (void)requestAccessForMediaType:(AVMediaType)mediaType
                completionHandler:(void (^)(BOOL granted))handler API_AVAILABLE(macos(10.14));
@end

API_AVAILABLE(macos(14.0))
@interface AVAudioApplication : NSObject
+ (void)requestRecordPermissionWithCompletionHandler:(void (^)(BOOL granted))response;
@end

NS_ASSUME_NONNULL_END
