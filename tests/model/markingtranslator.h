#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// Translates every text to "<context>source", which shows the translated texts and their contexts.
class MarkingTranslator : public QTranslator
{
public:
    MarkingTranslator() { QCoreApplication::installTranslator(this); }
    ~MarkingTranslator() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY_MOVE(MarkingTranslator)

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QLatin1Char('<') + QString::fromUtf8(context) + QLatin1Char('>') + QString::fromUtf8(source);
    }
};
