#pragma once

#include <QLocale>
#include <QString>

namespace viewer {

/// A number as a person reads it.
inline QString numberText(std::size_t number)
{
    return QLocale().toString(static_cast<qulonglong>(number));
}

} // namespace viewer
