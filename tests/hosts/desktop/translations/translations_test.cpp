#include "hosts/common/look/mnemonics.h"
#include "hosts/desktop/translations/translation_file.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace desktop {

namespace {

constexpr const char* languages[] = {"de", "es", "fr", "ja"};

QStringList placeholders(const QString& text)
{
    static const QRegularExpression mark(QStringLiteral("%\\d"));
    QStringList found;
    for (auto match = mark.globalMatch(text); match.hasNext();) found << match.next().captured();
    found.sort();
    return found;
}

bool hasMnemonic(const QString& text)
{
    return text != withoutMnemonic(text);
}

void forEveryText(void (*check)(const TranslatedText&))
{
    for (const char* language : languages)
        for (const auto& text : translatedTexts(language)) {
            SCOPED_TRACE(language + (": " + text.source.toStdString()));
            check(text);
        }
}

TEST(Translations, EveryTextIsTranslated)
{
    forEveryText([](const TranslatedText& text) {
        EXPECT_EQ(QString(), text.state);
        EXPECT_FALSE(text.translation.trimmed().isEmpty());
    });
}

TEST(Translations, KeepThePlaceholders)
{
    forEveryText([](const TranslatedText& text) {
        EXPECT_EQ(placeholders(text.source), placeholders(text.translation));
    });
}

TEST(Translations, MarkALetterWhereTheSourceDoes)
{
    forEveryText([](const TranslatedText& text) {
        EXPECT_EQ(hasMnemonic(text.source), hasMnemonic(text.translation));
        EXPECT_LE(text.translation.count(QLatin1Char('&')), 1);
    });
}

TEST(Translations, KeepTheDotsOfACommandThatAsksForMore)
{
    forEveryText([](const TranslatedText& text) {
        EXPECT_EQ(text.source.endsWith(QLatin1String("...")),
                  text.translation.endsWith(QLatin1String("...")));
    });
}

TEST(Translations, JapaneseMarksALatinLetterBehindTheText)
{
    static const QRegularExpression form(QStringLiteral("\\(&[A-Z]\\)(\\.\\.\\.|:| >)?$"));
    int marked = 0;
    for (const auto& text : translatedTexts("ja")) {
        if (!hasMnemonic(text.translation)) continue;
        ++marked;
        EXPECT_TRUE(form.match(text.translation).hasMatch()) << text.translation.toStdString();
    }
    EXPECT_GT(marked, 30);
}

TEST(Translations, AllLanguagesHaveTheSameTexts)
{
    const auto first = translatedTexts(languages[0]);
    ASSERT_GT(first.size(), 150U);
    for (const char* language : languages) {
        const auto texts = translatedTexts(language);
        ASSERT_EQ(first.size(), texts.size()) << language;
        for (std::size_t place = 0; place < first.size(); ++place) {
            EXPECT_EQ(first[place].context, texts[place].context) << language;
            EXPECT_EQ(first[place].source, texts[place].source) << language;
        }
    }
}

} // namespace

} // namespace desktop
