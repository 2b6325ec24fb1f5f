#include "hosts/desktop/log/growth_bar.h"

#include "hosts/common/look/spoken_label.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>

namespace desktop {

GrowthBar::GrowthBar(QWidget* parent)
    : QWidget(parent), text_(new SpokenLabel(this)), read_(new QPushButton(this)),
      viewer_(new QPushButton(this)), follow_(new QCheckBox(this))
{
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 8, 4);
    row->addWidget(text_, 1);
    row->addWidget(read_);
    row->addWidget(viewer_);
    row->addWidget(follow_);
    viewer_->hide();
    connect(read_, &QPushButton::clicked, this, &GrowthBar::readAsked);
    connect(viewer_, &QPushButton::clicked, this, &GrowthBar::viewerAsked);
    connect(follow_, &QCheckBox::toggled, this, &GrowthBar::followed);
    showInLanguage(this, [this] {
        text_->setAccessibleName(tr("New lines"));
        read_->setText(tr("Read A&gain"));
        read_->setToolTip(tr("Read the log again, to its present end (F5)"));
        viewer_->setText(tr("Open in Vie&wer"));
        viewer_->setToolTip(tr("Open this log in the viewer, which shows logs of any size"));
        follow_->setText(tr("Foll&ow"));
        follow_->setToolTip(tr("Show lines as they come, while the last line is the current one"));
        if (sentence_) text_->setText(sentence_());
    });
}

void GrowthBar::say(LiveSentence sentence, bool viewer)
{
    sentence_ = std::move(sentence);
    text_->setText(sentence_ ? sentence_() : QString());
    read_->setVisible(!viewer);
    follow_->setVisible(!viewer);
    viewer_->setVisible(viewer);
}

QString GrowthBar::said() const
{
    return text_->text();
}

bool GrowthBar::following() const
{
    return follow_->isChecked();
}

void GrowthBar::setFollowing(bool following)
{
    follow_->setChecked(following);
}

} // namespace desktop
