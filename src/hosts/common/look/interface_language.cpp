#include "hosts/common/look/interface_language.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLibraryInfo>
#include <QWidget>

namespace {

constexpr std::int32_t primaryLanguage = 0x3ff; ///< the bits of an identifier without its region

QString codeOf(std::int32_t identifier)
{
    switch (identifier & primaryLanguage) {
    case 0x07:
        return QStringLiteral("de");
    case 0x0a:
        return QStringLiteral("es");
    case 0x0c:
        return QStringLiteral("fr");
    case 0x11:
        return QStringLiteral("ja");
    default:
        return QStringLiteral("en");
    }
}

/// How numbers look in a language: by the system's own settings where it speaks the same.
QLocale localeOf(const QString& code)
{
    const QLocale language(code);
    const QLocale system = QLocale::system();
    return system.language() == language.language() ? system : language;
}

class LanguageListener final : public QObject {
public:
    LanguageListener(QWidget* widget, std::function<void()> show)
        : QObject(widget), show_(std::move(show))
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::LanguageChange) show_();
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> show_;
};

} // namespace

void showInLanguage(QWidget* widget, std::function<void()> show)
{
    show();
    new LanguageListener(widget, std::move(show));
}

InterfaceLanguage::InterfaceLanguage()
{
    QLocale::setDefault(localeOf(code_));
}

InterfaceLanguage::~InterfaceLanguage()
{
    leave();
    QLocale::setDefault(before_);
}

void InterfaceLanguage::choose(std::int32_t identifier)
{
    const QString code = codeOf(identifier);
    if (code == code_) return;
    leave();
    if (!window_.load(QStringLiteral(":/translations/window_%1.qm").arg(code))) return;
    code_ = code;
    QLocale::setDefault(localeOf(code));
    if (qt_.load(QStringLiteral("qtbase_") + code,
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&qt_);
    QCoreApplication::installTranslator(&window_);
}

void InterfaceLanguage::leave()
{
    QCoreApplication::removeTranslator(&window_);
    QCoreApplication::removeTranslator(&qt_);
    code_ = QStringLiteral("en");
    QLocale::setDefault(localeOf(code_));
}
