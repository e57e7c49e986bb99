#pragma once

#include "model/wipereport.h"

#include <QDialog>

QT_FORWARD_DECLARE_CLASS(QPushButton)

/// Shows the certificate of a finished job, and exports or prints it. The view is built once, from a copy of
/// the report.
class CertificateDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CertificateDialog(const WipeReport &report, QWidget *parent = nullptr);

private slots:
    void onExportPdf();
    void onPrint();

private:
    QWidget *makeButtonBar();
    QString proposedFile() const;

    const WipeReport m_report;
    QPushButton *m_exportButton;
    QPushButton *m_printButton;
    QPushButton *m_closeButton;
};
