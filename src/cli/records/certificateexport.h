#pragma once

#include "model/joboutcome.h"

#include <QCoreApplication>
#include <QString>

#include <memory>
#include <optional>

struct WipeReport;

namespace cli {

/// Certificates need fonts, and fonts need Qt Gui, which a build without windows does not have. Each kind of
/// build has its own source for these functions.

bool canExportCertificates();

/// Creates the application object of the program, which needs no display. argc must outlive it.
std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv);

/// Writes the certificate as a PDF, completely or not at all, with the outcome if it is known.
bool exportCertificate(const WipeReport &report, const std::optional<OutcomeRecord> &outcome,
                       const QString &path);

} // namespace cli
