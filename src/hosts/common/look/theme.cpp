#include "hosts/common/look/theme.h"

#include "hosts/common/look/tool_style.h"

#include <QApplication>
#include <QFontDatabase>

namespace {

QPalette lightPalette()
{
    QPalette colours(QColor(0xf3f5f7));
    colours.setColor(QPalette::WindowText, QColor(0x1b2127));
    colours.setColor(QPalette::Base, QColor(0xffffff));
    colours.setColor(QPalette::AlternateBase, QColor(0xf6f8fa));
    colours.setColor(QPalette::Text, QColor(0x1b2127));
    colours.setColor(QPalette::Button, QColor(0xf3f5f7));
    colours.setColor(QPalette::ButtonText, QColor(0x1b2127));
    colours.setColor(QPalette::ToolTipBase, QColor(0xffffff));
    colours.setColor(QPalette::ToolTipText, QColor(0x1b2127));
    colours.setColor(QPalette::Highlight, QColor(0x1a6fb5));
    colours.setColor(QPalette::HighlightedText, QColor(0xffffff));
    colours.setColor(QPalette::Link, QColor(0x0b57a4));
    colours.setColor(QPalette::LinkVisited, QColor(0x6a3d9a));
    colours.setColor(QPalette::PlaceholderText, QColor(0x5c6873));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colours.setColor(QPalette::Disabled, role, QColor(0x87919b));
    return colours;
}

QPalette darkPalette()
{
    QPalette colours(QColor(0x22272d));
    colours.setColor(QPalette::WindowText, QColor(0xe3e8ed));
    colours.setColor(QPalette::Base, QColor(0x1a1e23));
    colours.setColor(QPalette::AlternateBase, QColor(0x20252a));
    colours.setColor(QPalette::Text, QColor(0xe3e8ed));
    colours.setColor(QPalette::Button, QColor(0x2d333a));
    colours.setColor(QPalette::ButtonText, QColor(0xe3e8ed));
    colours.setColor(QPalette::BrightText, QColor(0xffffff));
    colours.setColor(QPalette::ToolTipBase, QColor(0x2d333a));
    colours.setColor(QPalette::ToolTipText, QColor(0xe3e8ed));
    colours.setColor(QPalette::Highlight, QColor(0x2f78b7));
    colours.setColor(QPalette::HighlightedText, QColor(0xffffff));
    colours.setColor(QPalette::Link, QColor(0x8ab8f0));
    colours.setColor(QPalette::LinkVisited, QColor(0xc3a4ea));
    colours.setColor(QPalette::PlaceholderText, QColor(0x97a2ad));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colours.setColor(QPalette::Disabled, role, QColor(0x78828c));
    return colours;
}

QColor byTheme(const QPalette& palette, QColor light, QColor dark)
{
    return theme::isDark(palette) ? dark : light;
}

} // namespace

namespace theme {

Scheme schemeOf(const QString& name)
{
    if (name == QLatin1String("light")) return Scheme::light;
    if (name == QLatin1String("dark")) return Scheme::dark;
    return Scheme::system;
}

QString nameOf(Scheme scheme)
{
    if (scheme == Scheme::light) return QStringLiteral("light");
    return scheme == Scheme::dark ? QStringLiteral("dark") : QStringLiteral("system");
}

void apply(Scheme scheme)
{
    // The desktop's own palette, as the program found it before it set one.
    static const bool desktopIsDark = isDark(QApplication::palette());
    const bool dark = scheme == Scheme::dark || (scheme == Scheme::system && desktopIsDark);
    QApplication::setStyle(new ToolStyle);
    QApplication::setPalette(dark ? darkPalette() : lightPalette());
}

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < 128;
}

QColor errorTint(const QPalette& palette)
{
    return byTheme(palette, QColor(0xfde7e7), QColor(0x47272a));
}

QColor warningTint(const QPalette& palette)
{
    return byTheme(palette, QColor(0xfff5d9), QColor(0x42371e));
}

QColor hitTint(const QPalette& palette)
{
    return byTheme(palette, QColor(0xffe08a), QColor(0x7a5c10));
}

QColor noticeTint(const QPalette& palette)
{
    return byTheme(palette, QColor(0xfff1cc), QColor(0x4a3d1c));
}

QColor restingSelection(const QPalette& palette)
{
    return byTheme(palette, QColor(0x66737f), QColor(0x4a5560));
}

QColor errorMark(const QPalette& palette)
{
    return byTheme(palette, QColor(0xc4302b), QColor(0xf0807a));
}

QColor warningMark(const QPalette& palette)
{
    return byTheme(palette, QColor(0xb87400), QColor(0xdfae4d));
}

QColor hitMark(const QPalette& palette)
{
    return byTheme(palette, QColor(0x7446ad), QColor(0xbb9bee));
}

QColor outline(const QPalette& palette)
{
    return byTheme(palette, QColor(0xd4dae0), QColor(0x3c444d));
}

QColor quietText(const QPalette& palette)
{
    return byTheme(palette, QColor(0x52606d), QColor(0xa3afba));
}

QFont traceFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    const QFont program = QApplication::font();
    if (program.pointSizeF() > 0) font.setPointSizeF(program.pointSizeF());
    return font;
}

} // namespace theme
