#pragma once

#include "model/joboutcome.h"
#include "model/wipereport.h"

#include <QString>
#include <QStringList>

/// How a job ended, and what was kept of it.
struct JobEnd
{
    bool success = false; ///< as the worker tells it
    WipeReport report;
    OutcomeRecord outcome;
    QStringList leftUnmounted; ///< volumes by name, of a job that did not succeed

    bool hasRecord = false;   ///< a report was to be kept
    bool isStored = false;    ///< it is in the database
    QString notStoredBecause; ///< in words for the user; empty when it is stored, or was not to be
};
