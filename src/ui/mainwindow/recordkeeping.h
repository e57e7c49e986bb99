#pragma once

struct JobEnd;

/// Keeps the records of a job as the settings say: report, certificate file, line in the log. Interface
/// thread.
namespace recordkeeping {

bool isWanted();

/// Stores the report in the database and sets hasRecord, isStored and notStoredBecause. Without a wanted
/// report only the log gets a line.
void store(JobEnd &end);

/// Exports the certificate of a successful job into the folder from the settings.
void exportCertificate(const JobEnd &end);

} // namespace recordkeeping
