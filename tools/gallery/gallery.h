#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

class QWidget;

// Screenshots of the program for visual inspection. They are not compared, but cut texts are collected.
class Gallery
{
public:
    // With an empty folder no picture is saved.
    Gallery(QString folder, QString language);

    // The language of the texts.
    QString language() const { return m_language; }

    // Shows the widget, lets it settle, and saves its picture as <name>-<language>-<scale>.png.
    void picture(QWidget &widget, const QString &name);
    void save(const QImage &image, const QString &name);
    QString pathFor(const QString &name, const QString &suffix) const;

    int count() const { return m_count; }
    bool hasFailed() const { return m_hasFailed; }
    // Each text begins with the name of its picture.
    QStringList cutTexts() const { return m_cutTexts; }

private:
    QString m_folder;
    QString m_language;
    int m_count = 0;
    QStringList m_cutTexts;
    bool m_hasFailed = false;
};

// Registers a family of pictures. Each family has its own file with one of these at namespace scope.
struct GalleryRoom
{
    using Painter = void (*)(Gallery &);
    GalleryRoom(const char *name, Painter painter);

    const char *name;
    Painter painter;
};
