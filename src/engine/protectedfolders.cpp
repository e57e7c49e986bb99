#include "engine/protectedfolders.h"

#include "platform/folders.h"
#include "platform/platform.h"

QString ProtectedFolders::hint(quint32 code)
{
    if (platform::Platform::current().folders().mayDistrustProgram(code))
        return tr("提示: Windows 安全中心的“受控文件夹访问”可能阻止本程序写入，请在其中允许本程序后重试");
    return {};
}
