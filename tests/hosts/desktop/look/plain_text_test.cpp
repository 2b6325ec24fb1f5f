#include "hosts/common/look/plain_tool_tip.h"
#include "hosts/desktop/support/test_window.h"

#include <QLabel>
#include <QTextDocument>

#include <gtest/gtest.h>

namespace desktop {

namespace {

const QString markUp = QStringLiteral("<img src='x.png'><b>diag</b> &lt; <a href='x'>y</a>");

/// What a tip of the toolkit shows of a text.
QString shownByTip(const QString& tip)
{
    if (!Qt::mightBeRichText(tip)) return tip;
    QTextDocument document;
    document.setHtml(tip);
    return document.toPlainText();
}

/// Labels that guess whether their text is mark-up.
QStringList guessing(const QWidget& window)
{
    QStringList found;
    for (const QLabel* label : window.findChildren<QLabel*>())
        if (label->textFormat() == Qt::AutoText && !label->text().isEmpty())
            found << QString::fromLatin1(label->metaObject()->className()) + QStringLiteral(": ") +
                         label->text();
    return found;
}

TEST(PlainToolTip, ShowsWhatLooksLikeMarkUpAsItIs)
{
    for (const QString& text : {markUp, QStringLiteral("diag_<b>.txt"), QStringLiteral("a\n<i>b")})
        EXPECT_EQ(text, shownByTip(plainToolTip(text)));
}

TEST(PlainToolTip, LeavesATextWithoutMarkUpAlone)
{
    for (const QString& text :
         {QString(), QStringLiteral("a < b & c"), QStringLiteral("caf\u00e9")})
        EXPECT_EQ(text, plainToolTip(text));
}

TEST(PlainText, NoLabelOfTheWindowGuessesWhatItsTextIs)
{
    TestWindow shown(100);
    EXPECT_EQ("", guessing(*shown.window).join(QLatin1Char(';')).toStdString());
    shown.showLog("KoCSMgr");
    settle();
    EXPECT_EQ("", guessing(*shown.window).join(QLatin1Char(';')).toStdString());
}

} // namespace

} // namespace desktop
