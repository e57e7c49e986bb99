#pragma once

#include <QMargins>
#include <QString>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QSpacerItem)

/// Looks that the pages have in common.
namespace pagestyle {

/// Margins around the content of most pages.
inline constexpr QMargins Margins{40, 30, 40, 30};

/// Dress the headline of a page whose texts change, and the wrapping line under it.
void asTitle(QLabel &title);
void asSubtitle(QLabel &subtitle, const QString &styleSheet);

/// Makes a space between two parts of a page that shrinks when the page is full. The layout owns it.
QSpacerItem *createGap();

} // namespace pagestyle
