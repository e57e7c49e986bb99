#pragma once

#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QBoxLayout)
QT_FORWARD_DECLARE_CLASS(QListWidget)

/// The left edge of the main window: logo, name and version, and the menu of three rows.
class Sidebar : public QWidget
{
    Q_OBJECT

public:
    /// Rows of the menu.
    enum Row { DataWipe = 0, History = 1, Settings = 2 };

    explicit Sidebar(QWidget *parent = nullptr);

    QListWidget *menu() const { return m_menu; }

private:
    QWidget *makeLogo();
    void fillMenu();

    QListWidget *m_menu;
};
