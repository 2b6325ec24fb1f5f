#pragma once

#include <string_view>

/// The font that a language's characters need; an empty name is the host's own font.
struct LanguageFont {
    int charset = 1;
    std::string_view name;
};

/// An object that shows text and may take a font. An object without fonts ignores it.
class FontTarget {
public:
    virtual ~FontTarget() = default;
    virtual void setFont(const LanguageFont& font) = 0;
};
