#pragma once

#include "ui/style/uiresources.h"

#include <QFile>
#include <QLayout>
#include <QVBoxLayout>
#include <QWidget>

// The surroundings of a page in the main window: background, style sheet and available size.
class PageFrame : public QWidget
{
public:
    explicit PageFrame(QWidget *page, QSize room = QSize(720, 600))
    {
        using namespace Qt::StringLiterals;
        addUiResources();
        QFile sheet(u":/styles/style.qss"_s);
        if (!sheet.open(QIODevice::ReadOnly))
            qFatal("no style sheet");
        setObjectName(u"pageStack"_s);
        setAttribute(Qt::WA_StyledBackground);
        setStyleSheet(QString::fromUtf8(sheet.readAll()));
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSizeConstraint(QLayout::SetNoConstraint);
        layout->addWidget(page);
        setFixedSize(room);
    }
};
