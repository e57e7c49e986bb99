#pragma once

#include <QString>

QT_FORWARD_DECLARE_CLASS(QPushButton)

/// Makes the push buttons of pages and dialogs. Interface thread.
namespace buttons {

/// How a button differs from a plain one. Measures are in pixels; 0 leaves the measure to the layout.
struct Look
{
    QString name; ///< object name, by which the style sheet chooses its looks
    int width = 0;
    int height = 0;
    int leastHeight = 0;
    bool hasHandCursor = false;
    QString styleSheet = {}; ///< of its own, on top of the application's
};

/// The button with that text. Assistive technology gets the text without its pictures. A layout or the caller
/// owns the button.
QPushButton *make(const QString &text, const Look &look);

/// The pair at the foot of a page that leads back and on: 140 by 45.
QPushButton *makeBack(const QString &text);
QPushButton *makeNext(const QString &text);

} // namespace buttons
