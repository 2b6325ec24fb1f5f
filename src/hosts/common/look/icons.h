#pragma once

#include <QIcon>

/// An icon that was drawn for this tool, by its file name without the ending. It follows the
/// palette, light or dark, at every size. An unknown name gives an icon that draws nothing.
QIcon toolIcon(const QString& name);
