#include "hosts/common/look/icons.h"

#include "hosts/common/look/theme.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

// Outside of any namespace, as the macro asks.
static void registerIcons()
{
    Q_INIT_RESOURCE(icons);
}

namespace {

/// The two colours that the files are drawn in.
constexpr const char* drawnInk = "#3b4754";
constexpr const char* drawnAccent = "#1a6fb5";

/// Draws a file in the colours of the palette that the program has at that moment.
class DrawnIcon final : public QIconEngine {
public:
    explicit DrawnIcon(QString name) : name_(std::move(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        // On a selected row too the ground is dark.
        const bool dark = mode == QIcon::Selected || theme::isDark(QApplication::palette());
        QSvgRenderer renderer(coloured(dark, mode));
        renderer.render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        const bool dark = theme::isDark(QApplication::palette());
        const QString key = QStringLiteral("orvan-icon/%1/%2x%3/%4%5")
                                .arg(name_)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(dark)
                                .arg(static_cast<int>(mode));
        QPixmap drawn;
        if (QPixmapCache::find(key, &drawn)) return drawn;
        drawn = QPixmap(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, QRect(QPoint(), size), mode, state);
        painter.end();
        QPixmapCache::insert(key, drawn);
        return drawn;
    }

    QIconEngine* clone() const override { return new DrawnIcon(*this); }

private:
    QByteArray coloured(bool dark, QIcon::Mode mode) const
    {
        QFile file(QStringLiteral(":/icons/%1.svg").arg(name_));
        if (!file.open(QIODevice::ReadOnly)) return {};
        QByteArray drawing = file.readAll();
        const auto inOne = [&](const char* colour) {
            drawing.replace(drawnInk, colour).replace(drawnAccent, colour);
        };
        if (mode == QIcon::Selected)
            inOne("#ffffff");
        else if (mode == QIcon::Disabled)
            inOne(dark ? "#56606a" : "#b4bcc4");
        else if (dark)
            drawing.replace(drawnInk, "#c6d0da").replace(drawnAccent, "#6fb7f2");
        return drawing;
    }

    QString name_;
};

} // namespace

QIcon toolIcon(const QString& name)
{
    static const bool registered = (registerIcons(), true);
    Q_UNUSED(registered)
    return QIcon(new DrawnIcon(name));
}
