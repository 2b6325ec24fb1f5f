#include "hosts/desktop/log/too_large_pane.h"

#include "hosts/common/look/icons.h"
#include "hosts/common/look/interface_language.h"
#include "shell/diag_log_view.h"

#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace desktop {

namespace {
constexpr int margin = 28;
constexpr int widestText = 520;
} // namespace

TooLargePane::TooLargePane(QWidget* parent)
    : QWidget(parent), text_(new QLabel(this)), viewer_(new QPushButton(this))
{
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    text_->setMaximumWidth(widestText);
    text_->setMinimumWidth(widestText / 2);
    viewer_->setIcon(toolIcon(QStringLiteral("viewer")));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(16);
    column->addWidget(text_);
    column->addWidget(viewer_, 0, Qt::AlignLeft);
    column->addStretch(1);
    connect(viewer_, &QPushButton::clicked, this, &TooLargePane::viewerAsked);
    showInLanguage(this, [this] { showTexts(); });
}

void TooLargePane::setSize(qint64 size)
{
    size_ = size;
    showTexts();
}

void TooLargePane::showTexts()
{
    const QLocale locale;
    text_->setText(
        tr("This log has %1 bytes, and the tool shows logs of up to %2. The viewer shows logs of "
           "any size.")
            .arg(locale.toString(size_),
                 locale.toString(static_cast<qint64>(mdlSnapIn::largestShownLog))));
    viewer_->setText(tr("Open in Vie&wer"));
}

} // namespace desktop
