#pragma once

/// Registers ":/icons/" and ":/styles/", which a static library does not do by itself. To be called before
/// the first widget.
void addUiResources();
