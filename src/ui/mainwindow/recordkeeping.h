#pragma once

struct JobEnd;

/// What the desktop program keeps of a job, as the settings want it, and its line in the log. Interface
/// thread.
namespace recordkeeping {

bool isWanted();

/// Puts the report into the database, and notes in the end what became of it. Only the log hears of an end
/// whose report is not wanted.
void store(JobEnd &end);

/// Exports the certificate of a job that succeeded into the folder that the user has chosen for that.
void exportCertificate(const JobEnd &end);

} // namespace recordkeeping
