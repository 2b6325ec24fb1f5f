#include "hosts/desktop/sheets/sheet_dialog.h"

#include "console/plain_sheet.h"
#include "console/wizard_sheet.h"
#include "hosts/common/look/notice_bar.h"
#include "hosts/common/look/screen_room.h"
#include "hosts/common/look/thin_line.h"
#include "hosts/desktop/sheets/page_widget.h"
#include "hosts/desktop/window/help_topics.h"
#include "runtime/run_time_error.h"

#include <QAction>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <vector>

namespace desktop {

namespace {

QStringList wizardCaptions()
{
    return {SheetDialog::tr("< &Back"), SheetDialog::tr("&Next >"), SheetDialog::tr("&Finish")};
}

QStringList plainCaptions()
{
    return {SheetDialog::tr("&Apply")};
}

} // namespace

SheetDialog::SheetDialog(std::shared_ptr<OpenSheet> sheet, QWidget* parent)
    : QDialog(parent), sheet_(std::move(sheet))
{
    setWindowModality(Qt::WindowModal);
    notice_ = new NoticeBar(this);
    tabs_ = new QTabBar(this);
    pages_ = new QStackedWidget(this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(notice_);
    column->addWidget(tabs_);
    column->addWidget(pages_, 1);
    for (int position = 1; position <= sheet_->pageCount(); ++position)
        tabs_->addTab(QString::fromStdString(sheet_->pageTitle(position)));
    tabs_->setVisible(sheet_->plainSheet() && sheet_->pageCount() > 1);
    makeButtons();
    auto* help = new QAction(this);
    help->setShortcut(QKeySequence(Qt::Key_F1));
    connect(help, &QAction::triggered, this,
            [this] { emit helpAsked(helpTopic::ofPage(sheet_->currentPage().name())); });
    addAction(help);
    sheet_->observe(this);
    connect(tabs_, &QTabBar::currentChanged, this, [this](int tab) {
        if (sheet_->plainSheet() && tab + 1 != sheet_->currentPosition())
            act([&] {
                if (finishEditing()) sheet_->plainSheet()->selectPage(tab + 1);
                tabs_->setCurrentIndex(sheet_->currentPosition() - 1);
            });
    });
    showPage();
    resizeWithinScreen(*this,
                       sheet_->wizard() ? QSize(680, 520) : QSize(560, 0).expandedTo(sizeHint()));
}

SheetDialog::~SheetDialog()
{
    sheet_->observe(nullptr);
    // Views look at controls of the pages, so they go first.
    for (const auto& [position, page] : shown_) delete page;
}

void SheetDialog::makeButtons()
{
    layout()->addWidget(new ThinLine(this));
    auto* row = new QHBoxLayout;
    row->setContentsMargins(16, 12, 16, 12);
    row->setSpacing(8);
    const auto add = [&](const QString& text, auto&& press) {
        auto* made = new QPushButton(text, this);
        made->setAutoDefault(false);
        connect(made, &QPushButton::clicked, this, [this, press] { act(press); });
        row->addWidget(made);
        return made;
    };
    // What is typed counts before a page is left or applied.
    const auto addTaking = [&](const QString& text, auto&& press) {
        return add(text, [this, press] {
            if (finishEditing()) press();
        });
    };
    const auto addChanging = [&](const QString& text, auto&& press) {
        return addTaking(text, [this, press] {
            if (aroundChange)
                aroundChange(press);
            else
                press();
        });
    };
    help_ = add(tr("Help"), [this] { sheet_->help(); });
    row->addStretch(1);
    if (WizardSheet* wizard = sheet_->wizard()) {
        back_ = addTaking(wizardCaptions()[0], [wizard] { wizard->back(); });
        next_ = addChanging(wizardCaptions()[1], [wizard] { wizard->next(); });
        finish_ = addChanging(wizardCaptions()[2], [wizard] { wizard->finish(); });
        row->addSpacing(8);
    } else {
        ok_ = addChanging(tr("OK"), [this] { sheet_->plainSheet()->ok(); });
    }
    cancel_ = add(tr("Cancel"), [this] { cancel(); });
    if (sheet_->plainSheet()) {
        apply_ = addChanging(plainCaptions()[0], [this] { sheet_->plainSheet()->apply(); });
        ok_->setDefault(true);
    }
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

void SheetDialog::say(const LiveSentence& sentence)
{
    if (sentence)
        notice_->say(sentence);
    else if (always_)
        notice_->say(always_);
    else
        notice_->hide();
}

void SheetDialog::alwaysSay(LiveSentence sentence)
{
    always_ = std::move(sentence);
    if (notice_->sentence().isEmpty()) say({});
}

bool SheetDialog::finishEditing()
{
    const auto page = shown_.find(sheet_->currentPosition());
    return page == shown_.end() || page->second->finishEditing();
}

void SheetDialog::act(const std::function<void()>& what)
{
    ++calls_;
    try {
        what();
    } catch (const RunTimeError& error) {
        LiveSentence explained;
        if (explain && !sheet_->closed()) explained = explain(sheet_->currentPage(), error);
        if (explained)
            notice_->say(explained);
        else
            notice_->say([why = QString::fromStdString(error.description())] {
                return tr("That did not work: %1. Try again, or press Cancel.").arg(why);
            });
    }
    --calls_;
    showButtons();
    runTimers();
    emit acted();
    if (gone_ && calls_ == 0) {
        emit over();
        deleteLater();
    }
}

void SheetDialog::showPage()
{
    const int position = sheet_->currentPosition();
    if (position == 0 || sheet_->closed()) return;
    PageWidget*& page = shown_[position];
    if (!page) {
        const bool wizard = sheet_->wizard() != nullptr;
        page = new PageWidget(
            sheet_->page(position), wizard, wizard ? wizardCaptions() : plainCaptions(),
            [this](const std::function<void()>& what) { act(what); }, pages_);
        page->onSaid = [this](const LiveSentence& sentence) { say(sentence); };
        PageAddition* addition = additionTo ? additionTo(sheet_->page(position)) : nullptr;
        if (addition) page->add(addition);
        pages_->addWidget(page);
    }
    page->showState();
    // What was said belongs to the page that is left.
    if (pages_->currentWidget() != page) say({});
    pages_->setCurrentWidget(page);
    tabs_->setCurrentIndex(position - 1);
    setWindowTitle(QString::fromStdString(sheet_->pageTitle(position)));
    help_->setVisible(sheet_->hasHelpButton(position));
    showButtons();
    runTimers();
    if (page->focusFirst()) return;
    QPushButton* forward = finish_ && finish_->isVisibleTo(this) ? finish_ : next_;
    if (forward) forward->setFocus(Qt::TabFocusReason);
}

void SheetDialog::showButtons()
{
    if (const WizardSheet* wizard = sheet_->wizard()) {
        const WizardButtons& buttons = wizard->buttons();
        const bool last = buttons.nextOrFinish == wizardButton::finishEnabled ||
                          buttons.nextOrFinish == wizardButton::finishDisabled;
        back_->setEnabled(wizard->canGoBack());
        next_->setVisible(!last);
        next_->setEnabled(wizard->canGoNext());
        finish_->setVisible(last);
        finish_->setEnabled(wizard->canFinish());
        finish_->setText(buttons.finishText.empty() ? wizardCaptions()[2]
                                                    : QString::fromStdString(buttons.finishText));
        (last ? finish_ : next_)->setDefault(true);
    } else if (const PlainSheet* plain = sheet_->plainSheet()) {
        apply_->setEnabled(plain->canApply());
    }
}

/// Keeps a clock running for each timer of the page on show that runs.
void SheetDialog::runTimers()
{
    const std::vector<Timer*> current = sheet_->timers();
    for (auto& [timer, clock] : timers_)
        if (std::find(current.begin(), current.end(), timer) == current.end()) clock->stop();
    for (Timer* timer : current) {
        QTimer*& clock = timers_[timer];
        if (!clock) {
            clock = new QTimer(this);
            connect(clock, &QTimer::timeout, this, [this, timer] { act([&] { tick(*timer); }); });
        }
        if (!timer->running())
            clock->stop();
        else if (!clock->isActive() || clock->interval() != timer->interval())
            clock->start(timer->interval());
    }
}

void SheetDialog::tick(Timer& timer)
{
    const auto run = [&] { sheet_->tick(timer); };
    if (aroundTick && !sheet_->closed())
        aroundTick(sheet_->currentPage(), timer, run);
    else
        run();
}

void SheetDialog::cancel()
{
    emit cancelling();
    sheet_->cancel();
}

void SheetDialog::reject()
{
    act([this] { cancel(); });
}

void SheetDialog::closeEvent(QCloseEvent* event)
{
    event->ignore();
    reject();
}

void SheetDialog::pageShown(OpenSheet&)
{
    showPage();
}

void SheetDialog::buttonsChanged(OpenSheet&)
{
    showButtons();
    runTimers();
}

void SheetDialog::closed(OpenSheet&)
{
    if (gone_) return;
    gone_ = true;
    hide();
    if (calls_ > 0) return;
    emit over();
    deleteLater();
}

} // namespace desktop
