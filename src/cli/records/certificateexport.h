#pragma once

#include "model/joboutcome.h"

#include <QCoreApplication>
#include <QString>

#include <memory>
#include <optional>

struct WipeReport;

namespace cli {

// Certificates need fonts, and with them the parts of the framework that a build without windows leaves out.
// Two files define these functions, one for each build.

bool canExportCertificates();

// The application object that the program needs, which takes no display. argc must outlive it.
std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv);

// Writes the certificate as a PDF, as a whole or not at all, with the outcome if it is known.
bool exportCertificate(const WipeReport &report, const std::optional<OutcomeRecord> &outcome,
                       const QString &path);

} // namespace cli
