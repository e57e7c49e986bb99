#pragma once

#include <QCoreApplication>

QT_FORWARD_DECLARE_CLASS(QWidget)

/// Tells name, version and maker of the program.
class AboutBox
{
    Q_DECLARE_TR_FUNCTIONS(MainWindow)

public:
    /// Waits until the user has closed the box.
    static void show(QWidget &window);
};
