#include "hosts/desktop/sheets/text_views.h"

#include "hosts/common/look/theme.h"

#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QVBoxLayout>

namespace desktop {

namespace {

constexpr int progressSteps = 1000;
constexpr float titleSize = 1.35F;

QString shownText(const std::string& text)
{
    return QString::fromStdString(text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

} // namespace

LabelView::LabelView(Label& label, ControlRole role, QWidget* parent, const ActOnControl& act)
    : ControlView(label, new QLabel(parent), act), model_(label), role_(role),
      label_(static_cast<QLabel*>(widget()))
{
    label_->setTextFormat(Qt::PlainText);
    label_->setWordWrap(role_ != ControlRole::fieldLabel);
    if (role_ == ControlRole::title) {
        QFont font = label_->font();
        font.setBold(true);
        font.setPointSizeF(font.pointSizeF() * titleSize);
        label_->setFont(font);
    }
    if (role_ == ControlRole::body) label_->setTextInteractionFlags(Qt::TextSelectableByMouse);
}

QStringList LabelView::captions() const
{
    if (role_ != ControlRole::fieldLabel || !label_->buddy()) return {};
    return {shownText(model_.caption())};
}

void LabelView::showCaptions(const QStringList& marked)
{
    label_->setText(marked.front());
}

void LabelView::setBuddy(QWidget* target)
{
    label_->setBuddy(target);
}

void LabelView::render()
{
    const QString text = shownText(model_.caption());
    if (!label_->buddy()) label_->setText(text);
    if (role_ != ControlRole::progress) label_->setVisible(model_.visible() && !text.isEmpty());
}

SummaryView::SummaryView(Label& label, QWidget* parent, const ActOnControl& act)
    : ControlView(label, new QPlainTextEdit(parent), act), model_(label),
      text_(static_cast<QPlainTextEdit*>(widget()))
{
    text_->setReadOnly(true);
    text_->document()->setDocumentMargin(8);
    text_->setTabChangesFocus(true);
    text_->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    text_->setAccessibleName(QObject::tr("Summary"));
}

void SummaryView::render()
{
    const QString text = shownText(model_.caption());
    if (text != text_->toPlainText()) text_->setPlainText(text);
}

FrameView::FrameView(Frame& frame, QWidget* parent, const ActOnControl& act)
    : ControlView(frame, new QGroupBox(parent), act), model_(frame),
      box_(static_cast<QGroupBox*>(widget()))
{
    new QVBoxLayout(box_);
}

void FrameView::render()
{
    box_->setTitle(shownText(model_.caption()).replace(QLatin1String("&"), QLatin1String("&&")));
}

ProgressView::ProgressView(ProgressBar& bar, QWidget* parent, const ActOnControl& act)
    : ControlView(bar, new QProgressBar(parent), act), model_(bar),
      bar_(static_cast<QProgressBar*>(widget()))
{
    bar_->setRange(0, progressSteps);
    bar_->setAccessibleName(QObject::tr("Progress"));
}

void ProgressView::render()
{
    const float maximum = model_.maximum();
    bar_->setValue(maximum > 0 ? static_cast<int>(model_.value() / maximum * progressSteps) : 0);
}

} // namespace desktop
