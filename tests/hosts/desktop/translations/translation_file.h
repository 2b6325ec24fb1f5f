#pragma once

#include "support/places.h"

#include <QFile>
#include <QString>
#include <QXmlStreamReader>

#include <stdexcept>
#include <vector>

namespace desktop {

/// A text of the window in a file of translations.
struct TranslatedText {
    QString context;
    QString source;
    QString translation;
    QString state; ///< empty for one that is finished
};

/// All texts of a file such as "de" of a folder. Raises when it can't be read.
inline std::vector<TranslatedText>
translatedTexts(const char* code, const QString& folder = QString::fromUtf8(checkout::translations))
{
    QFile file(QStringLiteral("%1/window_%2.ts").arg(folder, QLatin1String(code)));
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error(file.errorString().toStdString());
    QXmlStreamReader xml(&file);
    std::vector<TranslatedText> texts;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == QLatin1String("name")) context = xml.readElementText();
        if (xml.name() == QLatin1String("message")) texts.push_back({context, {}, {}, {}});
        if (xml.name() == QLatin1String("source")) texts.back().source = xml.readElementText();
        if (xml.name() != QLatin1String("translation")) continue;
        texts.back().state = xml.attributes().value(QLatin1String("type")).toString();
        texts.back().translation = xml.readElementText();
    }
    if (xml.hasError()) throw std::runtime_error(xml.errorString().toStdString());
    return texts;
}

} // namespace desktop
