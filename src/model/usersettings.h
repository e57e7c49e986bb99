#pragma once

#include <QString>

#include <functional>
#include <memory>

QT_FORWARD_DECLARE_CLASS(QSettings)

/// The user's settings in the platform's own store, user scope. The store is opened again for every use, so
/// that a job reads the values that a window has just saved. Interface thread.
namespace usersettings {

inline constexpr QStringView Language = u"language";                    ///< code, default empty: the system's
inline constexpr QStringView VerifyAfterWipe = u"wipe/verifyAfterWipe"; ///< bool, default true
inline constexpr QStringView GenerateReport = u"wipe/generateReport";   ///< bool, default true
inline constexpr QStringView AutoExport = u"export/autoExport";         ///< bool, default false
inline constexpr QStringView ExportPath = u"export/path";               ///< folder, default empty

using Opener = std::function<std::unique_ptr<QSettings>()>;

std::unique_ptr<QSettings> open();

/// The stored value, or the default when there is none or its type is wrong.
bool readBool(const QSettings &store, QStringView key, bool byDefault);
QString readString(const QSettings &store, QStringView key);

/// Replaces the user's store for the lifetime of the object.
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
