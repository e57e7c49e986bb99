#pragma once

#include "platform/forwarding.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

// Files and folders with streams: "@one", a file of its own beside "a" to the machine, is a stream of "a". It
// stays when "a" is removed, so that a test sees what became of it.
class StreamedFiles : public platform::ForwardingFiles
{
public:
    using ForwardingFiles::ForwardingFiles;

    QStringList unlistable; // names of entries whose streams nobody tells
    // Puts a handle of the test's own in the place of that of a stream.
    std::function<std::unique_ptr<platform::FileHandle>(std::unique_ptr<platform::FileHandle> opened)> wrap;

    platform::Result<QList<platform::NamedStream>> namedStreams(const platform::EntryPath &entry) override;
    platform::Result<std::unique_ptr<platform::FileHandle>>
    openIn(const std::shared_ptr<platform::DurabilityGroup> &group, const platform::EntryPath &entry,
           platform::OpenMode mode) override;
};
