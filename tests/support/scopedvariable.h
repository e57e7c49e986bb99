#pragma once

#include <QByteArray>

// Sets an environment variable for a scope; a null value removes it.
class ScopedVariable
{
public:
    ScopedVariable(const char *name, const QByteArray &value);
    ~ScopedVariable();
    ScopedVariable(const ScopedVariable &) = delete;
    ScopedVariable &operator=(const ScopedVariable &) = delete;

private:
    void set(const QByteArray &value, bool isSet);

    const char *m_name;
    QByteArray m_before;
    bool m_wasSet;
};
