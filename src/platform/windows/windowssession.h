#pragma once

#include "platform/session.h"

namespace platform {

class WindowsSession final : public Session
{
public:
    QStringList systemVolumes() override;
    bool isSystemRoot(const QString &rootPath) override;
    bool holdsSystemFiles(const QString &rootPath) override;
    QString userId() override;
    Result<bool> isAdministrator() override;
    QString foreignAccount() override;
    void tellBinChanged() override;
    Result<std::unique_ptr<AwakeHold>> keepAwake(const AwakeRequest &request) override;
};

} // namespace platform
