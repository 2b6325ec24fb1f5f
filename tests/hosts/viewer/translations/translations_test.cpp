#include "hosts/desktop/translations/translation_file.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace viewer {
namespace {

using desktop::TranslatedText;

constexpr const char* languages[] = {"de", "es", "fr", "ja"};

std::vector<TranslatedText> textsOf(const char* language)
{
    return desktop::translatedTexts(language, QString::fromUtf8(checkout::folder) +
                                                  QStringLiteral("/src/hosts/viewer/translations"));
}

QStringList placeholders(const QString& text)
{
    static const QRegularExpression mark(QStringLiteral("%\\d"));
    QStringList found;
    for (auto match = mark.globalMatch(text); match.hasNext();) found << match.next().captured();
    found.sort();
    return found;
}

TEST(ViewerTranslations, EveryTextIsTranslatedWithAllThatItsSourceHas)
{
    for (const char* language : languages)
        for (const TranslatedText& text : textsOf(language)) {
            SCOPED_TRACE(language + (": " + text.source.toStdString()));
            EXPECT_EQ(QString(), text.state);
            EXPECT_FALSE(text.translation.trimmed().isEmpty());
            EXPECT_EQ(placeholders(text.source), placeholders(text.translation));
            EXPECT_EQ(text.source.count(QLatin1Char('&')),
                      text.translation.count(QLatin1Char('&')));
            EXPECT_EQ(text.source.endsWith(QLatin1String("...")),
                      text.translation.endsWith(QLatin1String("...")));
            EXPECT_EQ(text.source.count(QLatin1Char('\n')),
                      text.translation.count(QLatin1Char('\n')));
        }
}

TEST(ViewerTranslations, JapaneseMarksALatinLetterBehindTheText)
{
    static const QRegularExpression form(QStringLiteral("\\(&[A-Z]\\)(\\.\\.\\.|:)?$"));
    int marked = 0;
    for (const TranslatedText& text : textsOf("ja")) {
        if (!text.translation.contains(QLatin1Char('&'))) continue;
        ++marked;
        EXPECT_TRUE(form.match(text.translation).hasMatch()) << text.translation.toStdString();
    }
    EXPECT_GT(marked, 50);
}

TEST(ViewerTranslations, AllLanguagesHaveTheSameTexts)
{
    const auto first = textsOf(languages[0]);
    ASSERT_GT(first.size(), 300U);
    for (const char* language : languages) {
        const auto texts = textsOf(language);
        ASSERT_EQ(first.size(), texts.size()) << language;
        for (std::size_t place = 0; place < first.size(); ++place) {
            EXPECT_EQ(first[place].context, texts[place].context) << language;
            EXPECT_EQ(first[place].source, texts[place].source) << language;
        }
    }
}

} // namespace
} // namespace viewer
