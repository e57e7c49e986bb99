#pragma once

#include <QString>
#include <QStringList>

class WipeTask;

/// Gives the task new reports until its certificate id is neither stored nor in `taken`. There are 8,999 ids
/// a day, and storing a report replaces the stored one with the same id. Returns an empty string on success,
/// also when the database is not open, else the reason in words for the user. On the database's thread.
QString claimCertificateId(WipeTask &task, const QStringList &taken = {});
