#pragma once

#include <QString>

/// A cell of comma-separated text, which goes to a spreadsheet: none is a formula.
QString csvField(const QString& cell);
