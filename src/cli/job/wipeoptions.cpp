#include "cli/job/wipeoptions.h"

#include "cli/commandline.h"
#include "cli/texts.h"
#include "model/displaytext.h"
#include "model/wipetask.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace cli {

using namespace Qt::StringLiterals;

namespace {

std::optional<WipeMethod> findMethod(const QString &nameOrNumber)
{
    const QList<WipeMethod> methods = WipeMethod::allMethods();
    for (const WipeMethod &method : methods) {
        if (method.name.compare(nameOrNumber, Qt::CaseInsensitive) == 0 ||
            QString::number(method.type) == nameOrNumber)
            return method;
    }
    return std::nullopt;
}

QString shortfallNames()
{
    QStringList names;
    for (const ShortfallKind kind : allShortfallKinds()) {
        if (makesPartial(kind))
            names.append(kindName(kind));
    }
    return names.join(u", "_s);
}

// Reads the values of options one after the other and keeps the first error.
class OptionReader
{
public:
    OptionReader(const QCommandLineParser &options, const QStringList &commandWords)
        : m_options(options)
        , m_commandWords(commandWords)
    {}

    void readNumber(const QString &name, int smallest, int largest, int &number)
    {
        if (!m_options.isSet(name))
            return;
        bool isNumber = false;
        const QString given = m_options.value(name);
        number = given.toInt(&isNumber);
        if (isNumber && number >= smallest && number <= largest)
            return;
        const bool isOpen = largest == std::numeric_limits<int>::max();
        const QString range = isOpen ? Cli::tr("%1 or more").arg(smallest)
                                     : Cli::tr("from %1 to %2").arg(smallest).arg(largest);
        refuse(Cli::tr("--%1 takes a number %2, not '%3'").arg(name, range, displayText(given)));
    }

    void readMethod(WipeMethod &method)
    {
        if (!m_options.isSet(u"method"_s))
            return;
        const QString given = m_options.value(u"method"_s);
        if (const auto found = findMethod(given))
            method = *found;
        else
            refuse(Cli::tr("unknown method '%1', 'quorvex-cli methods' lists them").arg(displayText(given)));
    }

    void readKinds(QList<ShortfallKind> &kinds)
    {
        for (const QString &given : m_options.values(u"accept"_s)) {
            if (const auto kind = kindFromName(given))
                kinds.append(*kind);
            else
                refuse(Cli::tr("unknown kind of shortfall '%1', there are: %2")
                           .arg(displayText(given), shortfallNames()));
        }
    }

    // File is OutputFile or CertificateFile.
    template <typename File>
    void readFile(const QString &name, File &file)
    {
        if (!m_options.isSet(name))
            return;
        const auto found = File::at(m_options.value(name), m_commandWords);
        if (found)
            file = *found;
        else if (!m_refusal)
            m_refusal = found.refusal();
    }

    const std::optional<Refusal> &refusal() const { return m_refusal; }

private:
    void refuse(const QString &what)
    {
        if (!m_refusal)
            m_refusal = wrongCommandLine(what, m_commandWords);
    }

    const QCommandLineParser &m_options;
    QStringList m_commandWords;
    std::optional<Refusal> m_refusal;
};

} // namespace

QList<QCommandLineOption> wipeOptions()
{
    const QString methods = u"NAME|0-%1"_s.arg(WipeMethod::allMethods().size() - 1);
    return {
        {u"method"_s, Cli::tr("Erasure standard, by name or number (0: NIST 800-88)"), methods},
        {u"no-verify"_s, Cli::tr("Do not read back what was written")},
        {u"samples"_s, Cli::tr("Samples to read back from a drive (1000)"), u"N"_s},
        {u"threads"_s, Cli::tr("Files to erase at the same time, 1 to 32"), u"N"_s},
        {u"buffer-mb"_s, Cli::tr("Write buffer in MiB, 1 to 1024 (64)"), u"N"_s},
        {u"report"_s, Cli::tr("Write the report as JSON into this file"), u"FILE"_s},
        {u"force"_s, Cli::tr("Let --report replace a file that is no report")},
        {u"no-report"_s, Cli::tr("Do not store the report in the database")},
        {u"pdf"_s, Cli::tr("After a success write the certificate as PDF, into this file or folder"),
         u"FILE|DIR"_s},
        {u"accept"_s, Cli::tr("A shortfall of this kind is no failure; may be given several times"),
         u"KIND"_s},
        {u"yes"_s, Cli::tr("Do not ask for the word ERASE")},
    };
}

void WipeOptions::applyTo(WipeTask &task) const
{
    task.setMethod(method);
    task.setVerifyAfterWipe(verify);
    task.setVerifySampleSize(samples);
    task.setThreadCount(threads);
    task.setBufferSizeMB(bufferMB);
}

bool WipeOptions::accepts(const OutcomeRecord &outcome) const
{
    const QList<ShortfallKind> kinds = outcome.shortfallKinds();
    return outcome.outcome() == JobOutcome::Complete ||
           (outcome.outcome() == JobOutcome::Partial && !kinds.isEmpty() &&
            std::ranges::all_of(kinds, [this](ShortfallKind kind) { return accepted.contains(kind); }));
}

Outcome<WipeOptions> readWipeOptions(const CommandContext &context, const QStringList &commandWords)
{
    const WipeTask usual;
    WipeOptions options;
    options.method = usual.method();
    options.samples = usual.verifySampleSize();
    options.threads = usual.threadCount();
    options.bufferMB = usual.bufferSizeMB();
    options.verify = !context.options.isSet(u"no-verify"_s);
    options.storeReport = !context.options.isSet(u"no-report"_s);
    options.skipQuestion = context.options.isSet(u"yes"_s);

    OptionReader reader(context.options, commandWords);
    reader.readMethod(options.method);
    reader.readNumber(u"samples"_s, 1, std::numeric_limits<int>::max(), options.samples);
    reader.readNumber(u"threads"_s, 1, WipeTask::MostThreads, options.threads);
    reader.readNumber(u"buffer-mb"_s, 1, WipeTask::LargestBufferMB, options.bufferMB);
    reader.readKinds(options.accepted);
    reader.readFile(u"report"_s, options.reportFile);
    options.replacesAnything = context.options.isSet(u"force"_s);
    reader.readFile(u"pdf"_s, options.certificate);
    if (reader.refusal())
        return *reader.refusal();
    return options;
}

} // namespace cli
