#pragma once

#include "model/joboutcome.h"

#include <QDialog>
#include <QString>
#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QBoxLayout)

/// Tells the end of a job and, where a certificate was made, offers to view it.
class CompleteDialog : public QDialog
{
    Q_OBJECT

public:
    /// An empty id means that there is no certificate. After a failure none is offered, whatever the id.
    /// A job that succeeded and yet is not complete is told as such below the message.
    CompleteDialog(bool success, const QString &certificateId, QWidget *parent = nullptr,
                   const OutcomeRecord &outcome = OutcomeRecord(JobOutcome::Complete));

    /// Tells below the message which volumes a job that failed has left unmounted; nothing when there are
    /// none. Names are cleaned for display here.
    void addLeftUnmounted(const QStringList &volumes);

    /// Tells below the message why the report is not stored; nothing when the cause is empty.
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
