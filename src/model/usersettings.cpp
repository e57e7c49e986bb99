#include "model/usersettings.h"

#include <QMetaType>
#include <QSettings>
#include <QVariant>

#include <utility>

namespace usersettings {

using namespace Qt::StringLiterals;

namespace {

Opener &opener()
{
    static Opener instance = [] { return std::make_unique<QSettings>(u"Veltrano"_s, u"Quorvex"_s); };
    return instance;
}

} // namespace

std::unique_ptr<QSettings> open()
{
    return opener()();
}

bool readBool(const QSettings &store, QStringView key, bool byDefault)
{
    const QVariant value = store.value(key.toString());
    // Text stores return text and the registry returns numbers; a list is neither.
    const bool isScalar = value.typeId() == QMetaType::QString || value.typeId() == QMetaType::Bool ||
                          value.typeId() == QMetaType::Int || value.typeId() == QMetaType::UInt;
    return isScalar ? value.toBool() : byDefault;
}

QString readString(const QSettings &store, QStringView key)
{
    const QVariant value = store.value(key.toString());
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

ScopedStore::ScopedStore(Opener replacement)
    : m_previous(std::exchange(opener(), std::move(replacement)))
{}

ScopedStore::~ScopedStore()
{
    opener() = std::move(m_previous);
}

} // namespace usersettings
