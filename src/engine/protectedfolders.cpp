#include "engine/protectedfolders.h"

#include "platform/status.h"

// A program that is not trusted is told that it has no access there, or that nothing stands there.
QString ProtectedFolders::hint(quint32 code)
{
#ifdef Q_OS_WIN
    if (code == platform::AccessDenied || code == platform::FileNotFound)
        return tr("提示: Windows 安全中心的“受控文件夹访问”可能阻止本程序写入，请在其中允许本程序后重试");
#else
    Q_UNUSED(code);
#endif
    return {};
}
