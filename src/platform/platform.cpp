#include "platform/platform.h"

#include "platform/image/imageplatform.h"
#include "platform/nativeplatform.h"

#include <QDir>

#include <atomic>

namespace platform {

namespace {

std::atomic<Platform *> s_current{nullptr};

Platform &machine()
{
    static const std::unique_ptr<Platform> platform = createPlatform(ImageDriveOptions::fromEnvironment());
    return *platform;
}

} // namespace

Platform &Platform::current()
{
    Platform *platform = s_current.load();
    return platform ? *platform : machine();
}

ImageDriveOptions ImageDriveOptions::fromEnvironment()
{
    ImageDriveOptions options;
    options.imageFiles =
        qEnvironmentVariable("QUORVEX_IMAGE_DISKS").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    // Every other value hides the real drives, because a missing drive does less harm than an unwanted one.
    static const QStringList refusals{QString(), QStringLiteral("0"), QStringLiteral("no"),
                                      QStringLiteral("false")};
    options.onlyImages =
        !refusals.contains(qEnvironmentVariable("QUORVEX_ONLY_IMAGE_DISKS").trimmed(), Qt::CaseInsensitive);
    return options;
}

std::unique_ptr<Platform> createPlatform(const ImageDriveOptions &options)
{
    std::unique_ptr<Platform> native = createNativePlatform();
    if (options.imageFiles.isEmpty() && !options.onlyImages)
        return native;
    return std::make_unique<ImagePlatform>(std::move(native), options);
}

ScopedPlatform::ScopedPlatform(Platform &platform)
    : m_previous(s_current.exchange(&platform))
{}

ScopedPlatform::~ScopedPlatform()
{
    s_current.store(m_previous);
}

} // namespace platform
