#pragma once

#include <QStringList>

#include <windows.h>

#include <shellapi.h>
#include <shlobj.h>

#include <cstring>

// The data that the system sends with WM_DROPFILES. The receiver frees it.
inline HDROP droppedFiles(const QStringList &paths)
{
    QString list;
    for (const QString &path : paths)
        list += path + QChar(0);
    list += QChar(0);
    const std::size_t size = std::size_t(list.size()) * sizeof(QChar);
    HGLOBAL const memory = ::GlobalAlloc(GHND, sizeof(DROPFILES) + size);
    auto *const drop = static_cast<DROPFILES *>(::GlobalLock(memory));
    drop->pFiles = sizeof(DROPFILES);
    drop->fWide = TRUE;
    std::memcpy(drop + 1, list.constData(), size);
    ::GlobalUnlock(memory);
    return static_cast<HDROP>(memory);
}
