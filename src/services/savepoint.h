#pragma once

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QString>

/// A savepoint, which may be nested in a transaction. The destructor rolls back when it was not committed.
class Savepoint
{
public:
    explicit Savepoint(const QSqlDatabase &database)
        : m_query(database)
        , m_isOpen(m_query.exec(QStringLiteral("SAVEPOINT report")))
    {}
    ~Savepoint()
    {
        if (!m_isOpen)
            return;
        m_query.exec(QStringLiteral("ROLLBACK TO report"));
        m_query.exec(QStringLiteral("RELEASE report"));
    }
    Savepoint(const Savepoint &) = delete;
    Savepoint &operator=(const Savepoint &) = delete;

    bool isOpen() const { return m_isOpen; }
    bool commit()
    {
        // A savepoint whose commit failed is still open.
        const bool committed = m_query.exec(QStringLiteral("RELEASE report"));
        m_isOpen = !committed;
        return committed;
    }
    QSqlError error() const { return m_query.lastError(); }

private:
    QSqlQuery m_query;
    bool m_isOpen;
};
