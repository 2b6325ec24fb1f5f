#include "hosts/common/look/theme.h"

#include "hosts/common/look/icons.h"
#include "hosts/desktop/support/test_window.h"

#include <QApplication>
#include <QIcon>
#include <QMenu>
#include <QStyle>

#include <gtest/gtest.h>

#include <cmath>

namespace desktop {

namespace {

/// How bright a colour is to the eye, from 0 to 1, as the accessibility guidelines reckon it.
double luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// From 1, for one colour on itself, to 21, for black on white.
double contrast(const QColor& left, const QColor& right)
{
    const double one = luminance(left);
    const double other = luminance(right);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

/// A text and what it stands on.
struct Pair {
    const char* because;
    QColor text;
    QColor ground;
};

std::vector<Pair> pairsOf(const QPalette& colours)
{
    using P = QPalette;
    const auto of = [&](P::ColorRole role) { return colours.color(role); };
    const QColor quiet = theme::quietText(colours);
    return {
        {"labels", of(P::WindowText), of(P::Window)},
        {"a wizard's title", of(P::WindowText), of(P::Base)},
        {"lists and fields", of(P::Text), of(P::Base)},
        {"every other row", of(P::Text), of(P::AlternateBase)},
        {"a field that is only read", of(P::Text), of(P::Window)},
        {"buttons", of(P::ButtonText), of(P::Button)},
        {"buttons in light", of(P::ButtonText), of(P::Base)},
        {"tool tips", of(P::ToolTipText), of(P::ToolTipBase)},
        {"a selected row, a default button", of(P::HighlightedText), of(P::Highlight)},
        {"links of the manual", of(P::Link), of(P::Base)},
        {"links that were followed", of(P::LinkVisited), of(P::Base)},
        {"a hint in a field", of(P::PlaceholderText), of(P::Base)},
        {"the site in the status bar", of(P::PlaceholderText), of(P::Window)},
        {"what a task does", quiet, of(P::Base)},
        {"what a task does, under the pointer", quiet, of(P::Button)},
        {"the names of fields in the details", quiet, of(P::Window)},
        {"a line of an error", of(P::Text), theme::errorTint(colours)},
        {"a line of a warning", of(P::Text), theme::warningTint(colours)},
        {"a hit", of(P::Text), theme::hitTint(colours)},
        {"a notice", of(P::WindowText), theme::noticeTint(colours)},
    };
}

class Themes : public testing::TestWithParam<theme::Scheme> {
protected:
    void SetUp() override
    {
        testApplication();
        theme::apply(GetParam());
    }
    void TearDown() override { theme::apply(theme::Scheme::light); }
};

TEST_P(Themes, LetEveryTextStandOutFromItsGround)
{
    constexpr double least = 4.5;
    for (const auto& pair : pairsOf(QApplication::palette())) {
        SCOPED_TRACE(pair.because);
        EXPECT_GE(contrast(pair.text, pair.ground), least)
            << pair.text.name().toStdString() << " on " << pair.ground.name().toStdString();
    }
}

TEST_P(Themes, LetTheSignsOfControlsBeSeen)
{
    constexpr double least = 3;
    const QPalette colours = QApplication::palette();
    const QColor base = colours.color(QPalette::Base);
    EXPECT_GE(contrast(theme::quietText(colours), base), least) << "the edge of a check box";
    EXPECT_GE(contrast(colours.color(QPalette::Highlight), base), least) << "the focus, a tick";
    EXPECT_GE(contrast(colours.color(QPalette::Highlight), colours.color(QPalette::Window)), least)
        << "the default button";
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, Themes,
                         testing::Values(theme::Scheme::light, theme::Scheme::dark),
                         [](const auto& scheme) {
                             return theme::nameOf(scheme.param).toStdString();
                         });

TEST(Contrast, IsThatOfTheGuidelines)
{
    EXPECT_NEAR(21, contrast(Qt::black, Qt::white), 0.01);
    EXPECT_NEAR(1, contrast(Qt::red, Qt::red), 0.01);
    EXPECT_NEAR(4.48, contrast(QColor(0x777777), Qt::white), 0.01);
}

/// How many of a symbol's pixels have the colour that the tool's drawings have in a palette.
int inkOf(const QIcon& icon)
{
    const QImage drawn = icon.pixmap(24, 24).toImage();
    const QRgb ink = QColor(theme::isDark(QApplication::palette()) ? 0xc6d0da : 0x3b4754).rgb();
    int count = 0;
    for (int y = 0; y < drawn.height(); ++y)
        for (int x = 0; x < drawn.width(); ++x) count += drawn.pixel(x, y) == ink;
    return count;
}

TEST(ToolStyle, DrawsTheSymbolsOfBarsAndFieldsInTheColoursOfTheTheme)
{
    testApplication();
    for (const auto scheme : {theme::Scheme::light, theme::Scheme::dark}) {
        theme::apply(scheme);
        for (const auto which :
             {QStyle::SP_ToolBarHorizontalExtensionButton, QStyle::SP_LineEditClearButton})
            EXPECT_GT(inkOf(QApplication::style()->standardIcon(which)), 5)
                << static_cast<int>(which) << theme::nameOf(scheme).toStdString();
    }
    theme::apply(theme::Scheme::light);
}

/// Whether a menu, as drawn with its only entry chosen or not, has a colour in the room of its
/// icon.
bool showsInIcon(QMenu& menu, bool chosen, const QColor& colour)
{
    menu.setActiveAction(chosen ? menu.actions().front() : nullptr);
    const QImage drawn = menu.grab().toImage();
    const QRect entry = menu.actionGeometry(menu.actions().front());
    for (int y = entry.top(); y <= entry.bottom(); ++y)
        for (int x = entry.left(); x < entry.left() + 32; ++x)
            if (drawn.pixelColor(x, y) == colour) return true;
    return false;
}

TEST(Theme, AnIconOfAChosenMenuEntryIsInTheColourOfItsText)
{
    testApplication();
    theme::apply(theme::Scheme::light);
    QMenu menu;
    menu.addAction(toolIcon(QStringLiteral("gather")), QString());
    menu.ensurePolished();
    menu.resize(menu.sizeHint());
    const QColor ink("#3b4754");
    EXPECT_TRUE(showsInIcon(menu, false, ink));
    EXPECT_FALSE(showsInIcon(menu, true, ink));
    EXPECT_TRUE(showsInIcon(menu, true, Qt::white));
}

} // namespace

} // namespace desktop
