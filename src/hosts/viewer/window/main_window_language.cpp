#include "hosts/viewer/window/main_window.h"

#include <QAction>
#include <QLocale>
#include <QSettings>

namespace viewer {

namespace {

const QString languageKey = QStringLiteral("window/language");

struct Language {
    Command command;
    const char* code;
    std::int32_t identifier; ///< as the system numbers languages
};

constexpr Language languages[] = {
    {Command::english, "en", 1033}, {Command::german, "de", 1031},   {Command::spanish, "es", 3082},
    {Command::french, "fr", 1036},  {Command::japanese, "ja", 1041},
};

} // namespace

/// Takes a language by a name such as "fr" or "fr_CA"; English for one without texts.
void MainWindow::chooseLanguage(const QString& name)
{
    std::int32_t identifier = 0;
    for (const Language& language : languages)
        if (name.section(QLatin1Char('_'), 0, 0) == QLatin1String(language.code))
            identifier = language.identifier;
    language_.choose(identifier);
}

/// The one that was chosen before, or else the one of the person's system.
void MainWindow::chooseFirstLanguage()
{
    chooseLanguage(settings_.value(languageKey, QLocale::system().name()).toString());
}

void MainWindow::performLanguage(Command command)
{
    for (const Language& language : languages) {
        if (language.command != command) continue;
        settings_.setValue(languageKey, QString::fromLatin1(language.code));
        chooseLanguage(QString::fromLatin1(language.code));
    }
    updateLanguages();
}

void MainWindow::updateLanguages()
{
    for (const Language& language : languages)
        action(language.command).setChecked(language_.code() == QLatin1String(language.code));
}

} // namespace viewer
