#pragma once

#include <QMargins>
#include <QString>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QSpacerItem)

/// What the pages have in common.
namespace pagestyle {

/// Around the content of most pages.
inline constexpr QMargins Margins{40, 30, 40, 30};

/// Headline of a page whose texts change, and the line under it, which wraps.
void asTitle(QLabel &title);
void asSubtitle(QLabel &subtitle, const QString &styleSheet);

/// Space between two parts of a page that gives way where the page is full. The layout owns it.
QSpacerItem *createGap();

} // namespace pagestyle
