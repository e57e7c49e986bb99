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

// The options that every command takes.
QList<QCommandLineOption> globalOptions();

bool wantsJson(const QCommandLineParser &options);
bool wantsQuiet(const QCommandLineParser &options);

// The folder of database and log.
struct DataFolder
{
    QString path;         // absolute
    bool isGiven = false; // asked for in place of the per-user one

    QString database() const { return path + QStringLiteral("/quorvex.db"); }
    QString log() const { return path + QStringLiteral("/quorvex.log"); }
};
DataFolder dataFolder(const QCommandLineParser &options);

// The platform with the image drives that are asked for, beside those that the environment names. Null when
// nothing is: the one in force stays. Refused when an image is no regular file.
Outcome<std::unique_ptr<platform::Platform>> requestedPlatform(const QCommandLineParser &options);

} // namespace cli
