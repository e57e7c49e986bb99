#pragma once

#include "model/joboutcome.h"
#include "model/wipereport.h"

#include <QHash>
#include <QList>
#include <QTableWidget>

#include <optional>

/// Stored reports as rows to choose one from. Interface thread.
class HistoryTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit HistoryTable(QWidget *parent = nullptr);

    /// Takes the place of all rows. The outcomes, by certificate id, are those that are known.
    void fill(const QList<WipeReport> &reports, const QHash<QString, OutcomeRecord> &outcomes);

    /// Of the report in the current row, if there is one.
    std::optional<QString> currentCertificateId() const;
    /// Changes nothing when no row has the report.
    void makeCurrent(const QString &certificateId);

signals:
    /// The button in the row of that report was clicked.
    void viewWanted(const QString &certificateId);

private:
    enum Column { TargetColumn, MethodColumn, TimeColumn, StatusColumn, ActionColumn, ColumnCount };

    void addRow(const WipeReport &report, const std::optional<OutcomeRecord> &outcome);
    void showOutcome(const OutcomeRecord &outcome, QTableWidgetItem &item) const;
    static QString targetText(const WipeReport &report);
};
