#include "hosts/desktop/sheets/page_widget.h"

#include "controls/controls.h"
#include "hosts/desktop/look/icons.h"
#include "hosts/desktop/look/thin_line.h"
#include "hosts/desktop/sheets/control_widgets.h"
#include "hosts/desktop/sheets/mnemonics.h"
#include "hosts/desktop/sheets/text_views.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

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
    : QWidget(parent), page_(page), taken_(std::move(taken)), banner_(banner)
{
    for (const PageControl& declared : page_.controls()) {
        views_.push_back(makeControlView(declared, this, act));
        if (!views_.back()) continue;
        views_.back()->onShown = [this] { markLetters(); };
        views_.back()->onSaid = [this](const LiveSentence& sentence) {
            if (onSaid) onSaid(sentence);
        };
    }
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    if (banner_) addBanner();
    column_ = new QVBoxLayout;
    column_->setContentsMargins(pageMargin, 18, pageMargin, 18);
    column_->setSpacing(12);
    whole->addLayout(column_, 1);
    addControls();
    showState();
}

PageWidget::~PageWidget() = default;

bool PageWidget::isBanner(std::size_t index) const
{
    const ControlRole role = page_.controls()[index].role;
    return banner_ && (role == ControlRole::title || role == ControlRole::description);
}

void PageWidget::addBanner()
{
    auto* band = new Banner(this);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(6);
    for (std::size_t index = 0; index < views_.size(); ++index)
        if (isBanner(index)) texts->addWidget(views_[index]->widget());
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

void PageWidget::addControls()
{
    const auto& controls = page_.controls();
    QGridLayout* fields = nullptr;
    bool filled = false;
    for (std::size_t index = 0; index < controls.size(); ++index) {
        if (!views_[index] || isBanner(index)) continue;
        const ControlRole role = controls[index].role;
        QWidget* widget = views_[index]->widget();
        if (role == ControlRole::fieldLabel || role == ControlRole::field) {
            if (!fields) {
                fields = new QGridLayout;
                fields->setHorizontalSpacing(12);
                fields->setVerticalSpacing(10);
                fields->setColumnStretch(1, 1);
                column_->addLayout(fields);
            }
            addField(*fields, index);
            if (dynamic_cast<ListBox*>(controls[index].control)) {
                column_->setStretchFactor(fields, 1);
                filled = true;
            }
            continue;
        }
        fields = nullptr;
        if (role == ControlRole::frame) {
            addFramed(*column_, index);
        } else if (role == ControlRole::mainTree || role == ControlRole::summary) {
            column_->addWidget(widget, 1);
            filled = true;
        } else if (role == ControlRole::action) {
            addActions(*column_, index);
        } else {
            column_->addWidget(widget);
        }
    }
    if (!filled) column_->addStretch(1);
}

/// A row of a caption and its fields; fields without a caption of their own stand beside the one
/// before. Leaves `index` at the last control of the row.
void PageWidget::addField(QGridLayout& grid, std::size_t& index)
{
    const auto& controls = page_.controls();
    const int row = grid.rowCount();
    auto* label = dynamic_cast<LabelView*>(views_[index].get());
    auto* fields = new QHBoxLayout;
    fields->setSpacing(8);
    if (label && index + 1 < controls.size() && controls[index + 1].role == ControlRole::field) {
        ++index;
        label->setBuddy(views_[index]->focusTarget());
        const QString name = QString::fromStdString(
            static_cast<const Label*>(controls[index - 1].control)->caption());
        views_[index]->focusTarget()->setAccessibleName(name);
        const bool tall = dynamic_cast<ListBox*>(controls[index].control) != nullptr;
        grid.addWidget(label->widget(), row, 0,
                       Qt::AlignLeft | (tall ? Qt::AlignTop : Qt::AlignVCenter));
        label = nullptr;
    }
    if (label) {
        grid.addWidget(label->widget(), row, 0, 1, 2);
        return;
    }
    fields->addWidget(views_[index]->widget());
    const bool list = dynamic_cast<ListBox*>(controls[index].control) != nullptr;
    // A number with arrows and a picker are as wide as what they hold.
    const bool counted = index + 1 < controls.size() &&
                         dynamic_cast<SpinControl*>(controls[index + 1].control) != nullptr;
    const bool narrow =
        counted || dynamic_cast<DateTimePicker*>(controls[index].control) != nullptr;
    constexpr int pathCharacters = 26; ///< of a path, without scrolling in its field
    if (!counted && dynamic_cast<TextBox*>(controls[index].control))
        views_[index]->widget()->setMinimumWidth(fontMetrics().averageCharWidth() * pathCharacters);
    if (counted) {
        views_[index]->widget()->setMaximumWidth(fontMetrics().averageCharWidth() * 12);
        fields->setSpacing(2);
    }
    while (index + 1 < controls.size() && controls[index + 1].role == ControlRole::field) {
        ++index;
        fields->addWidget(views_[index]->widget());
    }
    if (index + 1 < controls.size() && controls[index + 1].role == ControlRole::action) {
        ++index;
        fields->addWidget(views_[index]->widget());
    }
    if (narrow) fields->addStretch(1);
    grid.addLayout(fields, row, 1);
    if (list) grid.setRowStretch(row, 1);
}

/// A row of buttons. Leaves `index` at the last one of it.
void PageWidget::addActions(QBoxLayout& column, std::size_t& index)
{
    const auto& controls = page_.controls();
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(views_[index]->widget());
    while (index + 1 < controls.size() && controls[index + 1].role == ControlRole::action)
        row->addWidget(views_[++index]->widget());
    row->addStretch(1);
    column.addLayout(row);
}

void PageWidget::addFramed(QBoxLayout& column, std::size_t& index)
{
    QWidget* box = views_[index]->widget();
    column.addWidget(box);
    if (index + 1 >= views_.size() || !views_[index + 1]) return;
    ++index;
    box->layout()->addWidget(views_[index]->widget());
}

void PageWidget::showState()
{
    for (const auto& view : views_)
        if (view) view->showState();
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
