#include "platform/image/imageplatform.h"

namespace platform {

namespace {

// Without real drives, no volume of the system can be opened. An unknown system volume would mark the first
// drive, which is an image here, so this session names none.
class SessionWithoutDrives : public ForwardingSession
{
public:
    using ForwardingSession::ForwardingSession;
    QStringList systemVolumes() override { return {}; }
};

} // namespace

ImagePlatform::ImagePlatform(std::unique_ptr<Platform> base, const ImageDriveOptions &options)
    : m_base(std::move(base))
    , m_devices(m_base->devices(), m_base->files(), options)
{
    if (options.onlyImages)
        m_session = std::make_unique<SessionWithoutDrives>(m_base->session());
    else
        m_session = std::make_unique<ForwardingSession>(m_base->session());
}

ImagePlatform::~ImagePlatform() = default;

} // namespace platform
