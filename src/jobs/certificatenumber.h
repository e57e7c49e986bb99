#pragma once

#include <QString>
#include <QStringList>

class WipeTask;

/// Gives the task a freshly made report until no stored one has its certificate id, nor one of those that are
/// taken besides; ids are drawn from 8,999 a day, and a report takes the place of the stored one with its id.
/// Empty when it has one, or when the database is not open; otherwise why there is none, in words for the
/// user. The database's thread.
QString claimCertificateId(WipeTask &task, const QStringList &taken = {});
