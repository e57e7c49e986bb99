#pragma once

#include "model/joboutcome.h"
#include "model/wipereport.h"

#include <QHash>
#include <QList>
#include <QWidget>

#include <functional>
#include <optional>

QT_FORWARD_DECLARE_CLASS(QBoxLayout)
QT_FORWARD_DECLARE_CLASS(QComboBox)
QT_FORWARD_DECLARE_CLASS(QKeySequence)
QT_FORWARD_DECLARE_CLASS(QPushButton)
class HistoryTable;

/// Lists the latest stored reports and lets the user view, export and delete them. Reads ReportDatabase,
/// which must be open already. Interface thread.
class HistoryPage : public QWidget
{
    Q_OBJECT

public:
    /// Writes the certificate of the report into the file, with the outcome of the job if it is known.
    /// Returns false when the file could not be written.
    using Exporter = std::function<bool(const WipeReport &report, const std::optional<OutcomeRecord> &outcome,
                                        const QString &file)>;

    explicit HistoryPage(QWidget *parent = nullptr);

    /// Reads the stored reports and shows all of them, without the filter.
    void loadHistory();

    /// Replaces the export by CertificateRenderer.
    void setExporter(Exporter exporter) { m_exporter = std::move(exporter); }

signals:
    void viewCertificate(const QString &certificateId);

public slots:
    void onFilterChanged();
    void onViewClicked();
    void onExportClicked();
    void onDeleteClicked();
    void onClearAllClicked();
    void onSelectionChanged();
    /// Applies the filter again. The current report stays current if it is still listed.
    void onSearch();

private:
    QWidget *createFilterBar();
    void connectTable();
    void connectKey(const QKeySequence &key, const QPushButton &button);
    QBoxLayout *createButtons();
    void showReports(const QList<WipeReport> &reports);

    Exporter m_exporter;
    QList<WipeReport> m_reports;
    QHash<QString, OutcomeRecord> m_outcomes; ///< known ones by certificate id
    QComboBox *m_filter;
    HistoryTable *m_table;
    QPushButton *m_view;
    QPushButton *m_export;
    QPushButton *m_delete;
    QPushButton *m_clearAll;
};
