#pragma once

#include "platform/linux/linuxsystemtree.h"
#include "platform/linux/linuxvolume.h"
#include "platform/session.h"

namespace platform {

class LinuxSession : public Session
{
public:
    explicit LinuxSession(const SystemTree &tree = {});

    QStringList systemVolumes() override;
    bool isSystemRoot(const QString &rootPath) override;
    bool holdsSystemFiles(const QString &rootPath) override;
    QString userId() override;
    Result<bool> isAdministrator() override;
    QString foreignAccount() override;
    void tellBinChanged() override {}
    Result<std::unique_ptr<AwakeHold>> keepAwake(const AwakeRequest &request) override;

private:
    SystemTree m_tree;
    VolumeTable m_volumes;
};

} // namespace platform
