#include "engine/failurewords.h"

#include "platform/devicefailure.h"

QString FailureWords::of(quint32 code)
{
    if (platform::isLockedByEncryption(code))
        return tr("错误: 卷已加密且未解锁 (BitLocker)，请先解锁该卷，或擦除整个磁盘 (--whole)");
    if (platform::isDeviceGone(code))
        return tr("错误: 设备已断开，或介质已更换");
    if (platform::isMediumFault(code))
        return tr("错误: 设备或介质故障");
    return {};
}
