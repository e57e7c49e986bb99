#pragma once

#include "model/joboutcome.h"

#include <QDialog>
#include <QString>
#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QBoxLayout)

/// Tells the user of the end of a job, and offers to view the certificate if there is one.
class CompleteDialog : public QDialog
{
    Q_OBJECT

public:
    /// An empty id means that there is no certificate. After a failure no certificate is offered. A warning
    /// below the message tells of a job that succeeded only in part.
    CompleteDialog(bool success, const QString &certificateId, QWidget *parent = nullptr,
                   const OutcomeRecord &outcome = OutcomeRecord(JobOutcome::Complete));

    /// Names below the message the volumes that a failed job has left unmounted. Does nothing with an empty
    /// list. The names are shown as displayText().
    void addLeftUnmounted(const QStringList &volumes);

    /// Tells below the message why the report is not stored. Does nothing with an empty cause.
    void addNotStored(const QString &cause);

signals:
    /// Emitted before the dialog closes.
    void viewCertificateClicked();

private:
    bool offersCertificate() const { return m_success && !m_certificateId.isEmpty(); }
    QString messageText() const;
    void addWarning(const QString &name, const QString &text, const QString &tip);
    void addIcon(QBoxLayout *layout);
    void addTexts(QBoxLayout *layout);
    void addCertificateId(QBoxLayout *layout);
    void addButtons(QBoxLayout *layout);
    void onViewCertificateClicked();

    bool m_success;
    QString m_certificateId;
    OutcomeRecord m_outcome;
};
