#pragma once

#include <QDir>
#include <QFileInfo>
#include <QString>

#ifdef Q_OS_WIN
#include <windows.h>

#include <string>
#else
#include <QFile>
#endif

// Makes a symbolic link to a file, a folder or nothing. False where the system makes none: Windows needs
// developer mode or an administrator, and not every stand-in for Windows has them.
inline bool makeLink(const QString &target, const QString &link)
{
#ifdef Q_OS_WIN
    // Not QFile::link(), which makes a shortcut: an ordinary file for everybody but the shell.
    constexpr DWORD Unprivileged = 0x2; // SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE
    const DWORD kind = QFileInfo(target).isDir() ? SYMBOLIC_LINK_FLAG_DIRECTORY : 0;
    const std::wstring name = QDir::toNativeSeparators(link).toStdWString();
    const std::wstring content = QDir::toNativeSeparators(target).toStdWString();
    if (!::CreateSymbolicLinkW(name.c_str(), content.c_str(), kind | Unprivileged))
        return false;
    // The call is known to succeed without doing anything.
    const DWORD attributes = ::GetFileAttributesW(name.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
#else
    return QFile::link(target, link);
#endif
}
