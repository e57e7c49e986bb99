#pragma once

#include <QStringList>

#include <memory>

namespace platform {

class Devices;
class Files;
class Folders;
class Session;

/// The interface of workers and services to the operating system. The four parts live as long as the Platform
/// and are thread-safe.
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

    /// The platform in force: the innermost ScopedPlatform, otherwise the machine's own, which is created at
    /// first use with the image drives named in the environment. Any thread.
    static Platform &current();
};

/// Image files that appear as drives, after the real ones.
struct ImageDriveOptions
{
    QStringList imageFiles;  ///< neither lists nor opens real drives and volumes
    bool onlyImages = false; ///< no real drive or volume is listed or opened

    /// Reads QUORVEX_IMAGE_DISKS (separated as in PATH) and QUORVEX_ONLY_IMAGE_DISKS (on for every value
    /// except an empty one, "0", "no" and "false").
    static ImageDriveOptions fromEnvironment();
};

/// The machine's own platform with image drives.
std::unique_ptr<Platform> createPlatform(const ImageDriveOptions &options);

/// Puts another platform in force until destruction. The platform must not change while jobs run; scopes
/// nest.
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
