#pragma once

#include "platform/status.h"

namespace platform {

// What the error numbers of a device say. Systems answer the same mishap with many numbers, by driver, file
// system and moment.

// It was pulled out, switched off, cut off, or has another medium or none; also what a volume on it answers
// then.
constexpr bool isDeviceGone(quint32 code)
{
    switch (code) {
    case BadUnit:
    case NotReady:
    case WrongDisk:
    case DeviceNotExist:
    case UnexpectedNetworkError:
    case NetworkNameDeleted:
    case NoSuchDevice:
    case FileInvalid:
    case MediaChanged:
    case NoMediaInDrive:
    case DeviceNotConnected:
    case RequestAborted:
    case DeviceRemoved:
        return true;
    default:
        return false;
    }
}

// The device or its medium fails, or what is on it can no longer be understood. Some of these are also given
// for other reasons, so that they never excuse anything.
constexpr bool isMediumFault(quint32 code)
{
    switch (code) {
    case GeneralFailure:
    case DeviceHardwareError:
    case UnrecognizedVolume:
    case IoDevice:
    case FileCorrupt:
        return true;
    default:
        return false;
    }
}

// The volume is encrypted and nobody has unlocked it: there is no file system of anybody's on it.
constexpr bool isLockedByEncryption(quint32 code)
{
    return code == EncryptedVolumeLocked;
}

} // namespace platform
