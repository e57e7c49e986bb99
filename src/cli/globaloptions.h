#pragma once

#include "cli/outcome.h"

#include <QCommandLineOption>
#include <QList>
#include <QString>

#include <memory>

class QCommandLineParser;

namespace platform {
class Platform;
}

namespace cli {

/// The options of every command.
QList<QCommandLineOption> globalOptions();

bool wantsJson(const QCommandLineParser &options);
bool wantsQuiet(const QCommandLineParser &options);

/// The folder of the database and the log.
struct DataFolder
{
    QString path;         ///< absolute
    bool isGiven = false; ///< given by an option instead of the per-user folder

    QString database() const { return path + QStringLiteral("/quorvex.db"); }
    QString log() const { return path + QStringLiteral("/quorvex.log"); }
};
DataFolder dataFolder(const QCommandLineParser &options);

/// A platform with the image drives of the options and of the environment. Null when the options name none;
/// the current platform then stays. Refused when an image is not a regular file.
Outcome<std::unique_ptr<platform::Platform>> requestedPlatform(const QCommandLineParser &options);

} // namespace cli
