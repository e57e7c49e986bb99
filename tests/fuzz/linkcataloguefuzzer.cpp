#include "fuzz/checks.h"
#include "services/linkmanager.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

#include <sys/mman.h>
#include <unistd.h>

// The catalogue of web addresses lies beside the program, where it can be damaged or replaced.

namespace {

// A file in memory, under a path of this process.
class MemoryFile
{
public:
    MemoryFile()
        : m_file(::memfd_create("catalogue", MFD_CLOEXEC))
    {
        require(m_file >= 0, "there are files in memory");
    }
    QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(m_file); }
    void fill(const std::uint8_t *data, std::size_t size) const
    {
        require(::ftruncate(m_file, 0) == 0 && ::pwrite(m_file, data, size, 0) == static_cast<ssize_t>(size),
                "the input is written");
    }

private:
    int m_file;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const MemoryFile catalogue;
    static const QTemporaryDir folder;
    static const QString settings = folder.filePath(QStringLiteral("settings.ini"));
    catalogue.fill(data, size);
    LinkManager links({catalogue.path(), QStringLiteral("de_DE"),
                       [] { return std::make_unique<QSettings>(settings, QSettings::IniFormat); }});

    const QByteArray text(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QJsonObject written = QJsonDocument::fromJson(text).object();
    QStringList categories = written.keys();
    categories.append(QStringLiteral("none"));
    for (const QString &category : std::as_const(categories)) {
        QStringList keys = written.value(category).toObject().keys();
        keys.append(QStringLiteral("none"));
        for (const QString &key : std::as_const(keys)) {
            const QString link = links.getLink(category, key);
            require(link == links.getLinkWithFallback(category, key), "both ways give one address");
            bool isWritten = link.isEmpty();
            const QJsonObject addresses = written.value(category).toObject().value(key).toObject();
            for (const QJsonValue &address : addresses)
                isWritten = isWritten || address.toString() == link;
            require(isWritten, "an address is one of the catalogue");
        }
    }
    const QString before = links.currentLanguage();
    links.setLanguage(QStringLiteral("no language"));
    require(links.currentLanguage() == before || links.supportedLanguages().contains(links.currentLanguage()),
            "an unknown language changes nothing");
    return 0;
}
