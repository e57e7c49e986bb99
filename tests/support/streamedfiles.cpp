#include "support/streamedfiles.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;
using namespace platform;

namespace {

// A stream has the identity of its file.
class StreamHandle : public ForwardingFileHandle
{
public:
    StreamHandle(std::unique_ptr<FileHandle> target, const FileId &id)
        : ForwardingFileHandle(std::move(target))
        , m_id(id)
    {}
    Result<FileId> id() override { return m_id; }

private:
    const FileId m_id;
};

} // namespace

Result<QList<NamedStream>> StreamedFiles::namedStreams(const EntryPath &entry)
{
    const QFileInfo file(entry.path());
    if (unlistable.contains(file.fileName()))
        return Status{AccessDenied, 0, "planned"};
    QList<NamedStream> streams;
    const QFileInfoList beside =
        QDir(file.path()).entryInfoList({file.fileName() + u"@*"_s}, QDir::Files, QDir::Name);
    for (const QFileInfo &stream : beside)
        streams.append({stream.fileName().mid(file.fileName().size()), stream.size()});
    return streams;
}

Result<std::unique_ptr<FileHandle>> StreamedFiles::openIn(const std::shared_ptr<DurabilityGroup> &group,
                                                          const EntryPath &entry, OpenMode mode)
{
    auto opened = ForwardingFiles::openIn(group, entry, mode);
    const QString name = QFileInfo(entry.path()).fileName();
    if (!opened || !name.contains(u'@'))
        return opened;
    const auto host = info(entry.sibling(name.section(u'@', 0, 0)));
    std::unique_ptr<FileHandle> stream =
        std::make_unique<StreamHandle>(opened.take(), host ? host.value().id : FileId());
    return wrap ? wrap(std::move(stream)) : std::move(stream);
}
