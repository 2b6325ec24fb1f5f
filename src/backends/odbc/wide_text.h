#pragma once

#include "backends/odbc/odbc_api.h"

#include <cstddef>
#include <string>
#include <string_view>

/// A text as ODBC takes it: units of 16 bits, whatever the machine.
class WideText {
public:
    /// `text` is UTF-8.
    explicit WideText(std::string_view text);

    /// What a call takes; the calls change nothing there, but do not say so.
    SQLWCHAR* data() { return reinterpret_cast<SQLWCHAR*>(units_.data()); }

    /// The length in units, for calls that count them, and in bytes, for values.
    SQLSMALLINT length() const { return static_cast<SQLSMALLINT>(units_.size()); }
    SQLINTEGER longLength() const { return static_cast<SQLINTEGER>(units_.size()); }
    SQLLEN bytes() const { return static_cast<SQLLEN>(units_.size() * sizeof(SQLWCHAR)); }
    std::size_t units() const { return units_.size(); }

private:
    std::u16string units_;
};

/// The UTF-8 of what a call wrote.
std::string utf8OfWide(const SQLWCHAR* text, std::size_t units);
