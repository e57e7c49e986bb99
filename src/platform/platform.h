#pragma once

#include <QStringList>

#include <memory>

namespace platform {

class Devices;
class Files;
class Folders;
class Session;

/// Everything that workers and services may ask of the operating system. The four parts live as long as the
/// Platform and are thread-safe.
class Platform
{
public:
    Platform() = default;
    virtual ~Platform() = default;
    Platform(const Platform &) = delete;
    Platform &operator=(const Platform &) = delete;

    virtual Files &files() = 0;
    virtual Folders &folders() = 0;
    virtual Devices &devices() = 0;
    virtual Session &session() = 0;

    /// The platform in force: the innermost ScopedPlatform, otherwise the machine's own, which is made at
    /// first use with the image drives that the environment names. Any thread.
    static Platform &current();
};

/// Image files that appear as drives, after the real ones.
struct ImageDriveOptions
{
    QStringList imageFiles;  ///< paths
    bool onlyImages = false; ///< no real drive or volume is listed or opened

    /// From QUORVEX_IMAGE_DISKS (separated as in PATH) and QUORVEX_ONLY_IMAGE_DISKS (anything but
    /// nothing, "0", "no" and "false").
    static ImageDriveOptions fromEnvironment();
};

/// The machine's own platform with image drives.
std::unique_ptr<Platform> createPlatform(const ImageDriveOptions &options);

/// Puts another platform in force until destruction. Not to be changed while jobs run; scopes nest.
class ScopedPlatform
{
public:
    explicit ScopedPlatform(Platform &platform);
    ~ScopedPlatform();
    ScopedPlatform(const ScopedPlatform &) = delete;
    ScopedPlatform &operator=(const ScopedPlatform &) = delete;

private:
    Platform *m_previous;
};

} // namespace platform
