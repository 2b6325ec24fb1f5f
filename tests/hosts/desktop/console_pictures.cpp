// Draws every page, view and box of the window into a folder, for eyes to look at:
//
//   console_pictures FOLDER [--language CODE]... [--theme light|dark]... [--size WIDTHxHEIGHT]
//                    [--only NAME]...
//
// A picture is FOLDER/CODE-THEME/NAME.png. Without options: every language in both themes.

#include "core/language_table.h"
#include "hosts/common/look/theme.h"
#include "hosts/desktop/support/window_tour.h"

#include <QCommandLineParser>
#include <QDir>

#include <cstdio>
#include <exception>
#include <stdexcept>

namespace desktop {

namespace {

struct Wanted {
    QString folder;
    QStringList languages;
    QStringList themes;
    QStringList only;
    QSize size;
};

Wanted wantedOf(const QApplication& application)
{
    const QCommandLineOption language(QStringLiteral("language"), {}, QStringLiteral("CODE"));
    const QCommandLineOption scheme(QStringLiteral("theme"), {}, QStringLiteral("NAME"));
    const QCommandLineOption only(QStringLiteral("only"), {}, QStringLiteral("NAME"));
    const QCommandLineOption size(QStringLiteral("size"), {}, QStringLiteral("WIDTHxHEIGHT"),
                                  QStringLiteral("1180x760"));
    QCommandLineParser parser;
    parser.addOptions({language, scheme, only, size});
    parser.process(application);
    if (parser.positionalArguments().size() != 1) throw std::runtime_error("name one folder");

    Wanted wanted{parser.positionalArguments().front(),
                  parser.values(language),
                  parser.values(scheme),
                  parser.values(only),
                  {}};
    if (wanted.languages.empty())
        for (const auto& code : toolLanguages()) wanted.languages << QString::fromStdString(code);
    if (wanted.themes.empty()) wanted.themes = {QStringLiteral("light"), QStringLiteral("dark")};
    const QStringList sides = parser.value(size).split(QLatin1Char('x'));
    if (sides.size() != 2) throw std::runtime_error("a size is WIDTHxHEIGHT");
    wanted.size = {sides[0].toInt(), sides[1].toInt()};
    return wanted;
}

int drawAll(const Wanted& wanted)
{
    int drawn = 0;
    for (const QString& code : wanted.languages) {
        TestWindow shown;
        shown.reopenIn(languageIdFromCode(code.toStdString()));
        for (const QString& name : wanted.themes) {
            theme::apply(theme::schemeOf(name));
            const QDir folder(QStringLiteral("%1/%2-%3").arg(wanted.folder, code, name));
            if (!folder.mkpath(QStringLiteral(".")))
                throw std::runtime_error("the folder can't be made");
            shown.window->resize(wanted.size);
            tourWindow(shown, [&](const std::string& place, QWidget& widget) {
                const QString file = QString::fromStdString(place);
                if (!wanted.only.empty() && !wanted.only.contains(file)) return;
                if (!widget.grab().save(folder.filePath(file + QStringLiteral(".png"))))
                    throw std::runtime_error("a picture can't be written");
                ++drawn;
            });
        }
    }
    std::printf("%d pictures in %s\n", drawn, qPrintable(wanted.folder));
    return drawn > 0 ? 0 : 1;
}

} // namespace

} // namespace desktop

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    try {
        return desktop::drawAll(desktop::wantedOf(application));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "console_pictures: %s\n", error.what());
        return 1;
    }
}
