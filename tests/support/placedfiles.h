#pragma once

#include "platform/forwarding.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

// Files with a content place set by the test; all other calls are passed on. One thread at a time.
class PlacedFiles : public platform::ForwardingFiles
{
public:
    using Place = std::function<platform::Result<platform::ContentPlace>(const QString &path)>;

    PlacedFiles(platform::Files &target, Place place)
        : ForwardingFiles(target)
        , m_place(std::move(place))
    {}

    // The paths passed to contentPlace(); queries on handles are left out.
    QStringList asked;

    platform::Result<std::unique_ptr<platform::FileHandle>>
    openIn(const std::shared_ptr<platform::DurabilityGroup> &group, const platform::EntryPath &entry,
           platform::OpenMode mode) override;
    platform::Result<platform::ContentPlace> contentPlace(const platform::EntryPath &entry) override;

private:
    class Handle;

    Place m_place;
};
