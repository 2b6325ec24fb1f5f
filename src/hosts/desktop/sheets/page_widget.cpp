#include "hosts/desktop/sheets/page_widget.h"

#include "controls/controls.h"
#include "hosts/common/look/icons.h"
#include "hosts/common/look/mnemonics.h"
#include "hosts/common/look/thin_line.h"
#include "hosts/desktop/sheets/control_widgets.h"
#include "hosts/desktop/sheets/page_addition.h"
#include "hosts/desktop/sheets/text_views.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace desktop {

namespace {

constexpr int pageMargin = 22;
constexpr int bannerSymbol = 40;

/// The band of a wizard page: the ground of lists, with a thin line below.
class Banner final : public QFrame {
public:
    explicit Banner(QWidget* parent) : QFrame(parent)
    {
        setAutoFillBackground(true);
        setBackgroundRole(QPalette::Base);
    }
};

} // namespace

PageWidget::PageWidget(SheetPage& page, bool banner, QStringList taken, const ActOnControl& act,
                       QWidget* parent)
    : QWidget(parent), page_(page), act_(act), layout_(layoutOf(page, banner)),
      taken_(std::move(taken))
{
    for (const PageControl& declared : page_.controls()) {
        views_.push_back(makeControlView(declared, this, act));
        if (!views_.back()) continue;
        views_.back()->onShown = [this] {
            markLetters();
            if (addition_) addition_->controlsChanged();
        };
        views_.back()->onSaid = [this](const LiveSentence& sentence) {
            if (onSaid) onSaid(sentence);
        };
    }
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    if (banner) addBanner();
    column_ = new QVBoxLayout;
    column_->setContentsMargins(pageMargin, 18, pageMargin, 18);
    column_->setSpacing(12);
    whole->addLayout(column_, 1);
    addRows();
    showState();
}

PageWidget::~PageWidget() = default;

bool PageWidget::isBanner(std::size_t index) const
{
    return std::find(layout_.banner.begin(), layout_.banner.end(), index) != layout_.banner.end();
}

void PageWidget::addBanner()
{
    auto* band = new Banner(this);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(6);
    for (const std::size_t index : layout_.banner) texts->addWidget(widgetOf(index));
    texts->addStretch(1);
    auto* symbol = new QLabel(band);
    symbol->setPixmap(toolIcon(QStringLiteral("console")).pixmap(bannerSymbol, bannerSymbol));
    auto* row = new QHBoxLayout(band);
    row->setContentsMargins(pageMargin, 16, pageMargin, 14);
    row->setSpacing(18);
    row->addLayout(texts, 1);
    row->addWidget(symbol, 0, Qt::AlignTop);
    layout()->addWidget(band);
    layout()->addWidget(new ThinLine(this));
}

void PageWidget::addRows()
{
    QGridLayout* fields = nullptr;
    bool filled = false;
    for (const PageRow& row : layout_.rows) {
        filled |= row.grows;
        if (row.kind != PageRow::Kind::field) fields = nullptr;
        switch (row.kind) {
        case PageRow::Kind::field:
            if (!fields) fields = addGrid();
            addField(*fields, row);
            if (row.grows) column_->setStretchFactor(fields, 1);
            break;
        case PageRow::Kind::frame:
            addFramed(row);
            break;
        case PageRow::Kind::actions:
            addActions(row);
            break;
        case PageRow::Kind::alone:
            column_->addWidget(widgetOf(row.controls.front()), row.grows ? 1 : 0);
            break;
        }
    }
    if (!filled) column_->addStretch(1);
}

QWidget* PageWidget::widgetOf(std::size_t index) const
{
    return views_[index]->widget();
}

QGridLayout* PageWidget::addGrid()
{
    auto* fields = new QGridLayout;
    fields->setHorizontalSpacing(12);
    fields->setVerticalSpacing(10);
    fields->setColumnStretch(1, 1);
    column_->addLayout(fields);
    return fields;
}

void PageWidget::addField(QGridLayout& grid, const PageRow& row)
{
    const int line = grid.rowCount();
    if (row.controls.empty()) {
        grid.addWidget(widgetOf(*row.caption), line, 0, 1, 2);
        return;
    }
    const std::size_t first = row.controls.front();
    if (row.caption) nameField(*row.caption, first);
    if (row.caption)
        grid.addWidget(widgetOf(*row.caption), line, 0,
                       Qt::AlignLeft | (row.grows ? Qt::AlignTop : Qt::AlignVCenter));

    auto* fields = new QHBoxLayout;
    const bool counted = row.width == PageRow::Width::number;
    fields->setSpacing(counted ? 2 : 8);
    constexpr int pathCharacters = 26; ///< of a path, without scrolling in its field
    constexpr int numberCharacters = 12;
    const int letter = fontMetrics().averageCharWidth();
    if (counted)
        widgetOf(first)->setMaximumWidth(letter * numberCharacters);
    else if (dynamic_cast<TextBox*>(page_.controls()[first].control))
        widgetOf(first)->setMinimumWidth(letter * pathCharacters);
    for (const std::size_t index : row.controls) fields->addWidget(widgetOf(index));
    if (row.width != PageRow::Width::rest) fields->addStretch(1);
    grid.addLayout(fields, line, 1);
    if (row.grows) grid.setRowStretch(line, 1);
}

/// The caption's letter leads to the field, and its text tells what the field is.
void PageWidget::nameField(std::size_t caption, std::size_t field)
{
    static_cast<LabelView&>(*views_[caption]).setBuddy(views_[field]->focusTarget());
    const auto* label = static_cast<const Label*>(page_.controls()[caption].control);
    views_[field]->focusTarget()->setAccessibleName(QString::fromStdString(label->caption()));
}

void PageWidget::addActions(const PageRow& row)
{
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    for (const std::size_t index : row.controls) buttons->addWidget(widgetOf(index));
    buttons->addStretch(1);
    column_->addLayout(buttons);
}

void PageWidget::addFramed(const PageRow& row)
{
    QWidget* box = widgetOf(row.controls.front());
    column_->addWidget(box);
    for (std::size_t inner = 1; inner < row.controls.size(); ++inner)
        box->layout()->addWidget(widgetOf(row.controls[inner]));
}

void PageWidget::showState()
{
    for (const auto& view : views_)
        if (view) view->showState();
    if (addition_) addition_->renew();
}

void PageWidget::add(PageAddition* addition)
{
    addition_ = addition;
    addition_->act = act_;
    column_->addWidget(addition);
    addition_->renew();
}

/// Gives every caption a letter that no other one of the page or the sheet has.
void PageWidget::markLetters()
{
    if (marking_) return;
    marking_ = true;
    QStringList captions = taken_;
    for (const auto& view : views_)
        if (view) captions << view->captions();
    const QStringList marked = withMnemonics(captions);
    qsizetype at = taken_.size();
    for (const auto& view : views_) {
        const qsizetype count = view ? view->captions().size() : 0;
        if (count > 0) view->showCaptions(marked.mid(at, count));
        at += count;
    }
    marking_ = false;
}

bool PageWidget::finishEditing()
{
    for (const auto& view : views_) {
        if (!view || view->finishEditing()) continue;
        view->focusTarget()->setFocus(Qt::OtherFocusReason);
        return false;
    }
    return true;
}

bool PageWidget::focusFirst()
{
    for (std::size_t index = 0; index < views_.size(); ++index) {
        if (!views_[index] || isBanner(index)) continue;
        QWidget* target = views_[index]->focusTarget();
        const auto* tree = dynamic_cast<const TreeView*>(page_.controls()[index].control);
        const bool tells = tree && !tree->checkBoxes();
        const bool choice = target && !tells && target->isEnabled() && target->isVisibleTo(this) &&
                            (target->focusPolicy() & Qt::TabFocus) &&
                            page_.controls()[index].role != ControlRole::summary;
        if (!choice) continue;
        target->setFocus(Qt::TabFocusReason);
        return true;
    }
    return false;
}

} // namespace desktop
