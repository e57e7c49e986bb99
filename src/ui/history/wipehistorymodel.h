#pragma once

#include "model/wipereport.h"

#include <QAbstractTableModel>
#include <QList>

/// A table of reports with one row for each, in the given order. Interface thread.
class WipeHistoryModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        CertificateColumn,
        OperationColumn,
        TargetColumn,
        MethodColumn,
        StartColumn,
        StatusColumn,
        ColumnCount
    };
    enum Role { CertificateIdRole = Qt::UserRole }; ///< of every cell in the row

    explicit WipeHistoryModel(QObject *parent = nullptr);

    void setReports(const QList<WipeReport> &reports);
    QList<WipeReport> reports() const { return m_reports; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    bool holds(const QModelIndex &index) const;
    static QString cellText(const WipeReport &report, int column);

    QList<WipeReport> m_reports;
};
