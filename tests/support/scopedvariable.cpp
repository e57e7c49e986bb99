#include "support/scopedvariable.h"

#include <QString>
#include <QtGlobal>

#ifdef Q_OS_WIN
#include <cstdlib>
#include <string>
#endif

ScopedVariable::ScopedVariable(const char *name, const QByteArray &value)
    : m_name(name)
    , m_before(qgetenv(name))
    , m_wasSet(qEnvironmentVariableIsSet(name))
{
    set(value, !value.isNull());
}

ScopedVariable::~ScopedVariable()
{
    set(m_before, m_wasSet);
}

void ScopedVariable::set(const QByteArray &value, bool isSet)
{
#ifdef Q_OS_WIN
    // The narrow calls are limited to the characters of one code page.
    const std::wstring text = QString::fromUtf8(value).toStdWString();
    ::_wputenv_s(QString::fromLatin1(m_name).toStdWString().c_str(), isSet ? text.c_str() : L"");
#else
    if (isSet)
        qputenv(m_name, value);
    else
        qunsetenv(m_name);
#endif
}
