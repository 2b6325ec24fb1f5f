#include "hosts/common/look/spoken_label.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QTextDocumentFragment>

namespace {

class SpokenLabelInterface final : public QAccessibleWidget {
public:
    explicit SpokenLabelInterface(SpokenLabel& label)
        : QAccessibleWidget(&label, QAccessible::StaticText)
    {}

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value) return static_cast<SpokenLabel*>(object())->spokenText();
        return QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface* interfaceOf(const QString&, QObject* object)
{
    auto* label = qobject_cast<SpokenLabel*>(object);
    return label ? new SpokenLabelInterface(*label) : nullptr;
}

} // namespace

SpokenLabel::SpokenLabel(QWidget* parent) : QLabel(parent)
{
    static const bool installed = [] {
        QAccessible::installFactory(interfaceOf);
        return true;
    }();
    Q_UNUSED(installed);
    setTextFormat(Qt::PlainText);
}

void SpokenLabel::setText(const QString& text)
{
    if (text == this->text()) return;
    QLabel::setText(text);
    if (!QAccessible::isActive()) return;
    QAccessibleValueChangeEvent changed(this, spokenText());
    QAccessible::updateAccessibility(&changed);
}

QString SpokenLabel::spokenText() const
{
    if (textFormat() == Qt::PlainText || !Qt::mightBeRichText(text())) return text();
    return QTextDocumentFragment::fromHtml(text()).toPlainText().replace(QChar::Nbsp,
                                                                         QLatin1Char(' '));
}
