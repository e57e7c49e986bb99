#pragma once

#include "model/joboutcome.h"
#include "model/wipereport.h"

#include <QDialog>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QPushButton)

/// Shows the certificate of a finished job, and exports or prints it. The view is built once, from a copy of
/// the report. For an incomplete job the view, the export and the print all say so.
class CertificateDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CertificateDialog(const WipeReport &report, QWidget *parent = nullptr,
                               const std::optional<OutcomeRecord> &outcome = {});

protected:
    void showEvent(QShowEvent *event) override;

private slots:
    void onExportPdf();
    void onPrint();

private:
    QWidget *makeButtonBar();
    QString proposedFile() const;

    const WipeReport m_report;
    const std::optional<OutcomeRecord> m_outcome;
    QPushButton *m_exportButton;
    QPushButton *m_printButton;
    QPushButton *m_closeButton;
};
