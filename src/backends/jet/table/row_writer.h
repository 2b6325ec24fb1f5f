#pragma once

#include "backends/jet/format.h"

#include <cstddef>
#include <cstring>

namespace jet {

/// What the rows of a table have in common.
struct RowShape {
    std::size_t columns = 0;    ///< as counted in a row
    std::size_t fixedBytes = 0; ///< of the columns of fixed length
    std::size_t variables = 0;  ///< columns of variable length

    std::size_t maskBytes() const { return (columns + 7) / 8; }

    /// The length of a row whose variable columns hold so many bytes.
    std::size_t rowBytes(std::size_t variableBytes) const
    {
        const std::size_t offsets = variables > 0 ? 2 * variables + 4 : 0;
        return 2 + fixedBytes + variableBytes + offsets + maskBytes();
    }
};

/// Writes one row in place. Variable columns come in the order of their indexes, each once.
class RowWriter {
public:
    /// `at` has room for `shape.rowBytes(variableBytes)`.
    RowWriter(char* at, const RowShape& shape, std::size_t variableBytes)
        : row_(at), next_(at + 2 + shape.fixedBytes),
          offset_(next_ + variableBytes + 2 * shape.variables),
          mask_(at + shape.rowBytes(variableBytes) - shape.maskBytes())
    {
        store16(row_, shape.columns);
        std::memset(row_ + 2, 0, shape.fixedBytes);
        std::memset(mask_, 0, shape.maskBytes());
        if (shape.variables == 0) return;
        store16(next_ + variableBytes, 2 + shape.fixedBytes + variableBytes);
        store16(mask_ - 2, shape.variables);
    }

    /// Marks a column as having a value; for a boolean column this is the value.
    void mark(std::size_t column)
    {
        mask_[column / 8] = static_cast<char>(mask_[column / 8] | 1 << (column % 8));
    }

    /// The place of a fixed column.
    char* fixed(std::size_t offset) { return row_ + 2 + offset; }

    /// The place of the next variable column, of `bytes` bytes, 0 for Null.
    char* variable(std::size_t bytes)
    {
        store16(offset_, static_cast<std::size_t>(next_ - row_));
        offset_ -= 2;
        next_ += bytes;
        return next_ - bytes;
    }

private:
    char* row_;
    char* next_;   ///< where the next variable column goes
    char* offset_; ///< where its offset goes: they stand in reverse order
    char* mask_;
};

} // namespace jet
