#pragma once

#include <QPrintEngine>
#include <QPrinter>
#include <QVariant>

// A printer that prints into a PDF file, and whose driver always keeps its own resolution.
class StubbornPrinter : public QPrinter
{
public:
    StubbornPrinter(const QString &file, int resolution)
        : QPrinter(QPrinter::HighResolution)
        , m_driver(m_inner)
    {
        m_inner.setOutputFormat(QPrinter::PdfFormat);
        m_inner.setOutputFileName(file);
        m_inner.setResolution(resolution);
        setEngines(&m_driver, m_inner.paintEngine());
    }

private:
    class Driver : public QPrintEngine
    {
    public:
        explicit Driver(const QPrinter &printer)
            : m_printer(printer)
        {}
        void setProperty(PrintEnginePropertyKey key, const QVariant &value) override
        {
            if (key != PPK_Resolution)
                engine()->setProperty(key, value);
        }
        QVariant property(PrintEnginePropertyKey key) const override { return engine()->property(key); }
        bool newPage() override { return engine()->newPage(); }
        bool abort() override { return engine()->abort(); }
        int metric(QPaintDevice::PaintDeviceMetric metric) const override { return engine()->metric(metric); }
        QPrinter::PrinterState printerState() const override { return engine()->printerState(); }

    private:
        // The engine changes with each change of the format.
        QPrintEngine *engine() const { return m_printer.printEngine(); }

        const QPrinter &m_printer;
    };

    QPrinter m_inner{QPrinter::HighResolution};
    Driver m_driver;
};
