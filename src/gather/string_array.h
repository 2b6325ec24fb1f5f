#pragma once

#include <string>
#include <vector>

/// Texts at the indexes 0 to an upper bound, of which a job's lists leave index 0 empty.
///
/// An array that was never sized has no bounds: asking for one, or for a text, raises 9.
class StringArray {
public:
    StringArray() = default;

    /// Raises 9 without bounds.
    int upperBound() const;

    /// Raises 9 outside the bounds.
    const std::string& at(int index) const;
    void set(int index, std::string text);

    /// Empty texts at 0 to `upperBound`, with nothing kept.
    void clear(int upperBound);

    /// Bounds of 0 to `upperBound`, with the texts inside them kept.
    void resize(int upperBound);

private:
    std::size_t positionAt(int index) const;

    std::vector<std::string> texts_;
};
