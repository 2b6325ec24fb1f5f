#pragma once

#include <QLocale>
#include <QString>
#include <QTranslator>

#include <cstdint>
#include <functional>

class QWidget;

/// A sentence in the interface language of the moment in which it is asked for.
using LiveSentence = std::function<QString()>;

/// Runs `show` now, and again at each change of the interface language while `widget` lives.
void showInLanguage(QWidget* widget, std::function<void()> show);

/// The language of the window's own texts, and of Qt's where they are installed. The program has
/// one; it begins with English, and English is back when it goes. Numbers are grouped as the
/// language does it (`QLocale()`), or as the person's own system does where that speaks it too.
class InterfaceLanguage {
public:
    InterfaceLanguage();
    ~InterfaceLanguage();
    InterfaceLanguage(const InterfaceLanguage&) = delete;
    InterfaceLanguage& operator=(const InterfaceLanguage&) = delete;

    /// Takes a language by its identifier, such as 1036. One without texts of the window, 0 too,
    /// is English. Open windows show the new texts with their next events.
    void choose(std::int32_t identifier);

    /// The chosen language by its code, such as "fr"; "en" for English.
    const QString& code() const { return code_; }

private:
    void leave();

    QLocale before_; ///< what numbers were grouped by
    QString code_ = QStringLiteral("en");
    QTranslator window_;
    QTranslator qt_;
};
