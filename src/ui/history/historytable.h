#pragma once

#include "model/joboutcome.h"
#include "model/wipereport.h"

#include <QHash>
#include <QList>
#include <QTableWidget>

#include <optional>

/// Shows stored reports as rows, one of which can be chosen. Interface thread.
class HistoryTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit HistoryTable(QWidget *parent = nullptr);

    /// Replaces all rows. `outcomes` has the known outcomes by certificate id.
    void fill(const QList<WipeReport> &reports, const QHash<QString, OutcomeRecord> &outcomes);

    /// Returns the id of the report in the current row, if there is one.
    std::optional<QString> currentCertificateId() const;
    /// Makes the row of the report the current one, if there is such a row.
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
