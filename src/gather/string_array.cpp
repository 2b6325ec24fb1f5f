#include "gather/string_array.h"

#include "runtime/run_time_error.h"

#include <cstddef>
#include <utility>

int StringArray::upperBound() const
{
    if (texts_.empty()) throw RunTimeError(runTimeErrors::subscriptOutOfRange);
    return static_cast<int>(texts_.size()) - 1;
}

const std::string& StringArray::at(int index) const
{
    return texts_[positionAt(index)];
}

void StringArray::set(int index, std::string text)
{
    texts_[positionAt(index)] = std::move(text);
}

void StringArray::clear(int upperBound)
{
    texts_.clear();
    resize(upperBound);
}

void StringArray::resize(int upperBound)
{
    texts_.resize(static_cast<std::size_t>(upperBound) + 1);
}

std::size_t StringArray::positionAt(int index) const
{
    const auto position = static_cast<std::size_t>(index);
    if (index < 0 || position >= texts_.size())
        throw RunTimeError(runTimeErrors::subscriptOutOfRange);
    return position;
}
