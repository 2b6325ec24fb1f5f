#pragma once

#include <gmock/gmock.h>

#include <regex>
#include <string>

/// Whether a whole text fits a regular expression of ECMAScript. GoogleTest's own expressions
/// differ from one system to the next.
MATCHER_P(FitsPattern, pattern, "fits " + std::string(pattern))
{
    return std::regex_match(std::string(arg), std::regex(pattern));
}
