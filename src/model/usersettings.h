#pragma once

#include <QString>

#include <functional>
#include <memory>

QT_FORWARD_DECLARE_CLASS(QSettings)

/// The user's settings: one store of the platform's own kind, user scope, opened anew for every use so that
/// what one window saved is what the next job reads. Interface thread.
namespace usersettings {

inline constexpr QStringView Language = u"language";                    ///< code, default empty: the system's
inline constexpr QStringView VerifyAfterWipe = u"wipe/verifyAfterWipe"; ///< bool, default true
inline constexpr QStringView GenerateReport = u"wipe/generateReport";   ///< bool, default true
inline constexpr QStringView AutoExport = u"export/autoExport";         ///< bool, default false
inline constexpr QStringView ExportPath = u"export/path";               ///< folder, default empty

using Opener = std::function<std::unique_ptr<QSettings>()>;

std::unique_ptr<QSettings> open();

/// What is stored under the key, or the default where nothing is, or something of another kind.
bool readBool(const QSettings &store, QStringView key, bool byDefault);
QString readString(const QSettings &store, QStringView key);

/// Puts another store in the place of the user's, for as long as it lives.
class ScopedStore
{
public:
    explicit ScopedStore(Opener replacement);
    ~ScopedStore();
    ScopedStore(const ScopedStore &) = delete;
    ScopedStore &operator=(const ScopedStore &) = delete;

private:
    Opener m_previous;
};

} // namespace usersettings
