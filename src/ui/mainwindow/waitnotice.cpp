#include "ui/mainwindow/waitnotice.h"

#include <QGuiApplication>
#include <QLabel>
#include <QString>
#include <QWidget>

using namespace Qt::StringLiterals;

WaitNotice::WaitNotice(QWidget &over, const QString &text)
    : m_label(new QLabel(text, &over))
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    m_label->setObjectName(u"waitNotice"_s);
    m_label->setAlignment(Qt::AlignCenter);
    m_label->setGeometry(over.rect());
    m_label->show();
    m_label->raise();
    m_label->repaint();
}

WaitNotice::~WaitNotice()
{
    delete m_label;
    QGuiApplication::restoreOverrideCursor();
}
