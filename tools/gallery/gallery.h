#pragma once

#include <QImage>
#include <QString>

class QWidget;

// Pictures of what users see, for people to look at: nothing is compared.
class Gallery
{
public:
    Gallery(QString folder, QString language);

    // The language of the texts.
    QString language() const { return m_language; }

    // Shows the widget, lets it settle, and saves its picture as <name>-<language>-<scale>.png.
    void picture(QWidget &widget, const QString &name);
    void save(const QImage &image, const QString &name);
    QString pathFor(const QString &name, const QString &suffix) const;

    int count() const { return m_count; }
    bool hasFailed() const { return m_hasFailed; }

private:
    QString m_folder;
    QString m_language;
    int m_count = 0;
    bool m_hasFailed = false;
};

// Each family of pictures is a file that holds one of these at namespace scope.
struct GalleryRoom
{
    using Painter = void (*)(Gallery &);
    GalleryRoom(const char *name, Painter painter);

    const char *name;
    Painter painter;
};
