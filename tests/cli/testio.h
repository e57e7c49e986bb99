#pragma once

#include "cli/io/cliio.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <optional>

// Streams in memory, no terminals unless a test says so, and a stop request that a test can make.
class TestIo : public cli::CliIo
{
public:
    bool inputIsTerminal = false;
    bool outputIsTerminal = false;
    bool errorIsTerminal = false;
    int width = 80;
    QStringList input;                                // lines not yet read
    bool losesOutput = false;                         // as on a full disk
    std::function<void(const QByteArray &)> onOutput; // with everything on standard output so far
    std::function<void()> onQuestion;                 // before a line is read
    QByteArray out;
    QByteArray err;
    int linesRead = 0;

    bool isTerminal(platform::StandardStream stream) const override;
    int columns() const override { return width; }
    std::optional<QString> readLine() override;
    cli::StopRequest &stopRequest() override { return m_stop; }

    // The lines of standard output, each of which must be JSON. Empty when one is not.
    QList<QJsonDocument> documents() const;
    QList<QJsonObject> events(const QString &name = {}) const;

protected:
    bool write(platform::StandardStream stream, const QByteArray &utf8) override;

private:
    cli::StopRequest m_stop;
};

// The system's locale in tests: none, and the texts are those of the sources.
inline const QString SourceTexts = QString();

// One run of a command: what it answered and what it printed. With a log folder of its own, and without real
// drives.
class CliRun
{
public:
    TestIo io;
    int code = -1;

    CliRun &operator()(const QStringList &arguments);
    QString folder() const { return m_folder.path(); }
    QByteArray log() const;
    // Whether standard error is one line that holds the words.
    bool complains(const char *words) const;

private:
    QTemporaryDir m_folder;
};

// What every suite does first: no real drive, no folder of the user.
void hideMachine(const QTemporaryDir &home);

constexpr const char *NoLinks = "SKIPPED: the system makes no symbolic links here";
