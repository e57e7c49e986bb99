#pragma once

#include "model/refusal.h"

#include <QString>
#include <QStringList>

#include <optional>

class WipeTask;

/// Gives the task new reports until its certificate id is neither stored nor in `taken`. There are 8,999 ids
/// a day, and storing a report replaces the stored one with the same id. Nothing is refused when the
/// database is not open. On the database's thread.
std::optional<Refusal> claimCertificateId(WipeTask &task, const QStringList &taken = {});
