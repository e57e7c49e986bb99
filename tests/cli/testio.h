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

// Streams in memory that are no terminals unless a test says so, and a stop request that a test can make.
class TestIo : public cli::CliIo
{
public:
    bool inputIsTerminal = false;
    bool outputIsTerminal = false;
    bool errorIsTerminal = false;
    int width = 80;
    QStringList input;                                // lines not yet read
    bool losesOutput = false;                         // as on a full disk
    std::function<void(const QByteArray &)> onOutput; // called with the whole standard output so far
    std::function<void()> onQuestion;                 // before a line is read
    QByteArray out;
    QByteArray err;
    int linesRead = 0;

    bool isTerminal(platform::StandardStream stream) const override;
    int columns() const override { return width; }
    std::optional<QString> readLine() override;
    cli::StopRequest &stopRequest() override { return m_stop; }

    // The lines of standard output, each of which must be JSON. Empty when one line is not.
    QList<QJsonDocument> documents() const;
    QList<QJsonObject> events(const QString &name = {}) const;

protected:
    bool write(platform::StandardStream stream, const QByteArray &utf8) override;

private:
    cli::StopRequest m_stop;
};

// No locale in tests, so the texts are those of the sources.
inline const QString SourceTexts = QString();

// One run of a command with its result and output. It has its own log folder and no real drives.
class CliRun
{
public:
    TestIo io;
    int code = -1;

    CliRun &operator()(const QStringList &arguments);
    QString folder() const { return m_folder.path(); }
    QByteArray log() const;
    // Whether standard error is a single line that contains the words.
    bool complains(const char *words) const;

private:
    QTemporaryDir m_folder;
};

// First step of every suite: hides the real drives and the user's folders.
void hideMachine(const QTemporaryDir &home);

constexpr const char *NoLinks = "SKIPPED: the system makes no symbolic links here";
