#pragma once

#include "cli/cliio.h"
#include "cli/runcli.h"
#include "support/links.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QStandardPaths>
#include <QStringList>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>

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

    bool isTerminal(platform::StandardStream stream) const override
    {
        switch (stream) {
        case platform::StandardStream::Input:
            return inputIsTerminal;
        case platform::StandardStream::Output:
            return outputIsTerminal;
        case platform::StandardStream::Error:
            break;
        }
        return errorIsTerminal;
    }
    int columns() const override { return width; }
    std::optional<QString> readLine() override
    {
        ++linesRead;
        if (onQuestion)
            onQuestion();
        return input.isEmpty() || m_stop.isRequested() ? std::nullopt : std::optional(input.takeFirst());
    }
    cli::StopRequest &stopRequest() override { return m_stop; }

    // The lines of standard output, each of which must be JSON. Empty when one is not.
    QList<QJsonDocument> documents() const
    {
        QList<QJsonDocument> documents;
        QList<QByteArray> lines = out.split('\n');
        if (!lines.takeLast().isEmpty())
            return {}; // the last line has no end
        for (const QByteArray &line : std::as_const(lines)) {
            documents.append(QJsonDocument::fromJson(line));
            if (documents.constLast().isNull())
                return {};
        }
        return documents;
    }
    QList<QJsonObject> events(const QString &name = {}) const
    {
        QList<QJsonObject> events;
        for (const QJsonDocument &document : documents()) {
            const QJsonObject event = document.object();
            if (name.isEmpty() || event.value(u"event").toString() == name)
                events.append(event);
        }
        return events;
    }

protected:
    bool write(platform::StandardStream stream, const QByteArray &utf8) override
    {
        if (stream == platform::StandardStream::Error) {
            err += utf8;
            return true;
        }
        if (losesOutput)
            return false;
        out += utf8;
        if (onOutput)
            onOutput(out);
        return true;
    }

private:
    cli::StopRequest m_stop;
};

// The system's locale in tests: its language has no catalogue.
inline const QString SourceTexts = QStringLiteral("zh_CN");

// One run of a command: what it answered and what it printed. With a log folder of its own, and without real
// drives.
class CliRun
{
public:
    TestIo io;
    int code = -1;

    CliRun &operator()(const QStringList &arguments)
    {
        code = cli::runCli(arguments + QStringList{QStringLiteral("--data-dir"), folder()}, io, SourceTexts);
        return *this;
    }
    QString folder() const { return m_folder.path(); }
    QByteArray log() const
    {
        QFile file(m_folder.filePath(QStringLiteral("quorvex.log")));
        return file.open(QIODevice::ReadOnly | QIODevice::Text) ? file.readAll() : QByteArray();
    }
    // Whether standard error is one line that holds the words.
    bool complains(const char *words) const
    {
        return io.err.count('\n') == 1 && io.err.endsWith('\n') && io.err.contains(words);
    }

private:
    QTemporaryDir m_folder;
};

// What every suite does first: no real drive, no folder of the user.
inline void hideMachine(const QTemporaryDir &home)
{
    QVERIFY(home.isValid());
    qputenv("QUORVEX_ONLY_IMAGE_DISKS", "1");
#ifdef Q_OS_WIN
    QStandardPaths::setTestModeEnabled(true); // the folders of Windows come from the registry
#else
    qputenv("XDG_DATA_HOME", home.path().toUtf8());
#endif
}

constexpr const char *NoLinks = "SKIPPED: the system makes no symbolic links here";

inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}
