#pragma once

#include <QString>

/// The text as it is read aloud: without the picture before it and the arrow before or behind it.
QString spokenText(const QString &text);
