#pragma once

#include "platform/status.h"

namespace platform {

/// Classification of device error numbers. Systems report the same failure with different numbers, depending
/// on driver, file system and moment.

/// The device was unplugged, switched off or disconnected, or its medium was changed or removed. A volume on
/// the device reports the same numbers then.
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

/// The device or its medium fails, or the data on it is no longer readable as a volume. Some of these numbers
/// have other causes too, so a caller must never ignore a failure because of them.
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

/// The volume is encrypted and locked, so no file system on it is accessible.
constexpr bool isLockedByEncryption(quint32 code)
{
    return code == EncryptedVolumeLocked;
}

} // namespace platform
