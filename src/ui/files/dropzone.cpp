#include "ui/files/dropzone.h"

#include "model/spokentext.h"
#include "ui/style/buttons.h"

#include <QBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>

using namespace Qt::StringLiterals;

DropZone::DropZone(const QString &hint, const QString &action, QWidget *parent)
    : QFrame(parent)
    , m_plus(buttons::make(u"+"_s, {.name = u"plusBtn"_s, .width = 70, .height = 70, .hasHandCursor = true}))
    , m_hint(new QLabel(hint))
    , m_loading(new QLabel)
    , m_progress(new QProgressBar)
{
    setObjectName(u"dropZone"_s);
    setAcceptDrops(true);
    createButton(action);
    createLoading();
    createLayout();
    setLoading(false);
    connect(m_plus, &QPushButton::clicked, this, &DropZone::clicked);
}

void DropZone::createButton(const QString &action)
{
    m_plus->setAccessibleName(spokenText(action));
    m_hint->setObjectName(u"dropHint"_s);
}

void DropZone::createLoading()
{
    m_loading->setObjectName(u"loadingLabel"_s);
    m_loading->setTextFormat(Qt::PlainText);
    m_progress->setObjectName(u"loadingProgress"_s);
    m_progress->setFixedSize(300, 6);
    m_progress->setTextVisible(false);
    m_progress->setRange(0, 0);
}

void DropZone::createLayout()
{
    for (QLabel *label : {m_hint, m_loading}) {
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
    }
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(14);
    layout->addStretch();
    layout->addWidget(m_plus, 0, Qt::AlignHCenter);
    layout->addWidget(m_hint);
    layout->addWidget(m_loading);
    layout->addWidget(m_progress, 0, Qt::AlignHCenter);
    layout->addStretch();
}

void DropZone::setLoading(bool isLoading)
{
    m_plus->setVisible(!isLoading);
    m_hint->setVisible(!isLoading);
    m_loading->setVisible(isLoading);
    m_progress->setVisible(isLoading);
}

void DropZone::showLoading(const QString &text)
{
    setLoadingText(text);
    m_progress->setRange(0, 0);
    setLoading(true);
}

void DropZone::updateLoadingProgress(int current, int total, const QString &text)
{
    m_progress->setRange(0, total);
    m_progress->setValue(current);
    setLoadingText(text);
}

void DropZone::setLoadingText(const QString &text)
{
    m_loading->setText(text);
    m_progress->setAccessibleName(text);
}

void DropZone::hideLoading()
{
    setLoading(false);
}

void DropZone::setDragOver(bool isOver)
{
    setProperty("dragOver", isOver);
    style()->unpolish(this);
    style()->polish(this);
}
