#pragma once

#include "ui/prompts/prompts.h"

#include <QList>

/// The dialogs of the platform.
class NativePrompts : public Prompts
{
public:
    QMessageBox::StandardButton show(QWidget *parent, const Box &box) override;
    void withdraw() override;
    QString fileToSave(QWidget *parent, const QString &caption, const QString &proposal,
                       const QString &filter) override;
    QStringList filesToOpen(QWidget *parent, const QString &caption, const QString &filter) override;
    QString folder(QWidget *parent, const QString &caption, const QString &start) override;
    bool print(QWidget *parent, const QString &title, QPrinter &printer) override;

private:
    QList<QMessageBox *> m_shown; ///< nested boxes, the innermost last
};
