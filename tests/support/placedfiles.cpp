#include "support/placedfiles.h"

#include <utility>

class PlacedFiles::Handle : public platform::ForwardingFileHandle
{
public:
    Handle(std::unique_ptr<platform::FileHandle> target, const Place &place, QString path)
        : ForwardingFileHandle(std::move(target))
        , m_place(place)
        , m_path(std::move(path))
    {}
    platform::Result<platform::ContentPlace> contentPlace() override { return m_place(m_path); }

private:
    const Place &m_place;
    const QString m_path;
};

platform::Result<std::unique_ptr<platform::FileHandle>>
PlacedFiles::openIn(const std::shared_ptr<platform::DurabilityGroup> &group, const platform::EntryPath &entry,
                    platform::OpenMode mode)
{
    auto opened = ForwardingFiles::openIn(group, entry, mode);
    if (!opened)
        return opened;
    return std::unique_ptr<platform::FileHandle>(
        std::make_unique<Handle>(opened.take(), m_place, entry.path()));
}

platform::Result<platform::ContentPlace> PlacedFiles::contentPlace(const platform::EntryPath &entry)
{
    asked.append(entry.path());
    return m_place(entry.path());
}
