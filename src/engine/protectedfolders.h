#pragma once

#include <QCoreApplication>
#include <QString>
#include <QtGlobal>

// What may stand behind a refusal to write that the rights of the user do not explain.
class ProtectedFolders
{
    Q_DECLARE_TR_FUNCTIONS(ProtectedFolders)

public:
    // A line for the log; empty where the number tells of something else, and on systems that protect no
    // folders from programs.
    static QString hint(quint32 code);
};
