#pragma once

#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QBoxLayout)
QT_FORWARD_DECLARE_CLASS(QCheckBox)
QT_FORWARD_DECLARE_CLASS(QLineEdit)
QT_FORWARD_DECLARE_CLASS(QPushButton)

/// Edits the user's settings of wiping and exporting. They are read once, when the page is made, and written
/// only when the user saves; the folder is stored as it was typed, whether it exists or not. Interface
/// thread.
class SettingsPage : public QWidget
{
    Q_OBJECT

public:
    explicit SettingsPage(QWidget *parent = nullptr);

public slots:
    void onBrowseExportPath();
    void onSave();
    void onReset();

private:
    QWidget *createGroups();
    QWidget *createWipeGroup();
    QWidget *createExportGroup();
    QBoxLayout *createButtons();
    void load();

    QCheckBox *m_verify;
    QCheckBox *m_report;
    QLineEdit *m_path;
    QPushButton *m_browse;
    QCheckBox *m_autoExport;
};
