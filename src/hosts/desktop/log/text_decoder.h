#pragma once

#include "console/snap_in_definition.h"
#include "text/code_page.h"

#include <QString>

#include <string_view>

namespace desktop {

/// Turns the texts of a list into what Qt shows.
class TextDecoder {
public:
    TextDecoder(CodePage codePage, ListText encoding) : codePage_(codePage), encoding_(encoding) {}

    QString text(std::string_view bytes) const
    {
        if (encoding_ == ListText::utf8)
            return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
        QString decoded(static_cast<qsizetype>(bytes.size()), Qt::Uninitialized);
        QChar* target = decoded.data();
        for (const char byte : bytes) *target++ = QChar(codePage_.character(byte));
        return decoded;
    }

    const CodePage& codePage() const { return codePage_; }

private:
    CodePage codePage_;
    ListText encoding_;
};

} // namespace desktop
