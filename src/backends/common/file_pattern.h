#pragma once

#include <string>
#include <string_view>

/// A pattern for file names by the platform's rules, without regard to case.
///
/// `*` stands for any characters; `?` for one that is no point, or none at the end of the name or
/// before a point; `*.*` is every name, and a pattern such as `a.*` also finds a name without an
/// ending.
class FilePattern {
public:
    explicit FilePattern(std::string_view pattern);

    bool matches(std::string_view name) const;

private:
    std::string pattern_;
};
