#pragma once

#include "platform/forwarding.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

// Files and folders with streams. "@one", a separate file beside "a" on the machine, is a stream of "a". It
// stays when "a" is removed, so that a test can inspect it afterwards.
class StreamedFiles : public platform::ForwardingFiles
{
public:
    using ForwardingFiles::ForwardingFiles;

    QStringList unlistable; // names of entries whose streams cannot be listed
    // Replaces the handle of a stream by one of the test.
    std::function<std::unique_ptr<platform::FileHandle>(std::unique_ptr<platform::FileHandle> opened)> wrap;

    platform::Result<QList<platform::NamedStream>> namedStreams(const platform::EntryPath &entry) override;
    platform::Result<std::unique_ptr<platform::FileHandle>>
    openIn(const std::shared_ptr<platform::DurabilityGroup> &group, const platform::EntryPath &entry,
           platform::OpenMode mode) override;
};
