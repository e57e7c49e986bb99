#pragma once

#include "model/joboutcome.h"
#include "model/wipereport.h"

#include <QString>
#include <QStringList>

/// The end of a job and the storage of its report.
struct JobEnd
{
    bool success = false; ///< as reported by the worker
    WipeReport report;
    OutcomeRecord outcome;
    QStringList leftUnmounted; ///< names of the volumes that stay unmounted, of a job that did not succeed

    bool hasRecord = false;   ///< a report was to be stored
    bool isStored = false;    ///< the report is in the database
    QString notStoredBecause; ///< in words for the user; empty when it is stored, or was not to be stored
};
