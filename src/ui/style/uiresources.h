#pragma once

/// Makes ":/icons/" and ":/styles/" known. To be called once, before the first widget: the resources of a
/// static library are not found by themselves.
void addUiResources();
