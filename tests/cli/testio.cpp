#include "cli/testio.h"

#include "cli/runcli.h"
#include "support/testfiles.h"
#include "support/userdata.h"

#include <QTest>

bool TestIo::isTerminal(platform::StandardStream stream) const
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

std::optional<QString> TestIo::readLine()
{
    ++linesRead;
    if (onQuestion)
        onQuestion();
    return input.isEmpty() || m_stop.isRequested() ? std::nullopt : std::optional(input.takeFirst());
}

QList<QJsonDocument> TestIo::documents() const
{
    QList<QJsonDocument> documents;
    QList<QByteArray> lines = out.split('\n');
    if (!lines.takeLast().isEmpty())
        return {}; // the last line has no line end
    for (const QByteArray &line : std::as_const(lines)) {
        documents.append(QJsonDocument::fromJson(line));
        if (documents.constLast().isNull())
            return {};
    }
    return documents;
}

QList<QJsonObject> TestIo::events(const QString &name) const
{
    QList<QJsonObject> events;
    for (const QJsonDocument &document : documents()) {
        const QJsonObject event = document.object();
        if (name.isEmpty() || event.value(u"event").toString() == name)
            events.append(event);
    }
    return events;
}

bool TestIo::write(platform::StandardStream stream, const QByteArray &utf8)
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

CliRun &CliRun::operator()(const QStringList &arguments)
{
    code = cli::runCli(arguments + QStringList{QStringLiteral("--data-dir"), folder()}, io, SourceTexts);
    return *this;
}

QByteArray CliRun::log() const
{
    return textOf(m_folder.filePath(QStringLiteral("quorvex.log")));
}

bool CliRun::complains(const char *words) const
{
    return io.err.count('\n') == 1 && io.err.endsWith('\n') && io.err.contains(words);
}

void hideMachine(const QTemporaryDir &home)
{
    QVERIFY(home.isValid());
    qputenv("QUORVEX_ONLY_IMAGE_DISKS", "1");
    userdata::moveTo(home.path());
}
