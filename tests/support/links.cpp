#include "support/links.h"

#ifdef Q_OS_WIN
#include <QDir>
#include <QFileInfo>

#include <windows.h>

#include <string>
#else
#include "platform/filenames.h"

#include <unistd.h>
#endif

bool makeLink(const QString &target, const QString &link)
{
#ifdef Q_OS_WIN
    // QFile::link() would make a shortcut, which is an ordinary file to every program but the shell.
    constexpr DWORD Unprivileged = 0x2; // SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE
    const DWORD kind = QFileInfo(target).isDir() ? SYMBOLIC_LINK_FLAG_DIRECTORY : 0;
    const std::wstring name = QDir::toNativeSeparators(link).toStdWString();
    const std::wstring content = QDir::toNativeSeparators(target).toStdWString();
    if (!::CreateSymbolicLinkW(name.c_str(), content.c_str(), kind | Unprivileged))
        return false;
    // The call may report success without making a link.
    const DWORD attributes = ::GetFileAttributesW(name.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
#else
    return ::symlink(platform::encodeName(target).constData(), platform::encodeName(link).constData()) == 0;
#endif
}
