#include "hosts/desktop/window/about_dialog.h"

#include "hosts/common/look/icons.h"
#include "hosts/desktop/sheets/choice_views.h"
#include "hosts/desktop/sheets/text_views.h"
#include "settings/about_box.h"

#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace desktop {

namespace {

constexpr int symbolSize = 64;

void actNow(const std::function<void()>& act)
{
    act();
}

} // namespace

AboutDialog::AboutDialog(frmAbout& about, QWidget* parent) : QDialog(parent), about_(about)
{
    auto* symbol = new QLabel(this);
    symbol->setPixmap(toolIcon(QStringLiteral("console")).pixmap(symbolSize, symbolSize));
    QWidget* texts = textColumn();
    language_ = new QPushButton(this);
    language_->setAutoDefault(false);
    language_->setIcon(toolIcon(QStringLiteral("language")));
    connect(language_, &QPushButton::clicked, this, [this] { about_.lblChangeLanguage_Click(); });
    views_.push_back(std::make_unique<ButtonView>(about_.cmdOK, this, actNow));
    auto* ok = static_cast<QPushButton*>(views_.back()->widget());
    ok->setDefault(true);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(22, 22, 22, 18);
    grid->setHorizontalSpacing(22);
    grid->setVerticalSpacing(18);
    grid->addWidget(symbol, 0, 0, Qt::AlignTop);
    grid->addWidget(texts, 0, 1, 1, 2);
    grid->addWidget(language_, 1, 1, Qt::AlignLeft);
    grid->addWidget(ok, 1, 2, Qt::AlignRight);
    grid->setColumnStretch(1, 1);

    about_.onPopupMenu = [this] { popUpLanguages(); };
    about_.onChanged = [this] { showForm(); };
    showForm();
    for (const auto& view : views_) view->showState();
    setMinimumWidth(460);
    ok->setFocus();
}

AboutDialog::~AboutDialog()
{
    about_.onPopupMenu = nullptr;
    about_.onChanged = nullptr;
}

QWidget* AboutDialog::textColumn()
{
    auto* texts = new QWidget(this);
    auto* column = new QVBoxLayout(texts);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    const auto add = [&](Label& label, ControlRole role) {
        views_.push_back(std::make_unique<LabelView>(label, role, texts, actNow));
        return views_.back()->widget();
    };
    auto* version = new QHBoxLayout;
    version->addWidget(add(about_.lblVersionTitle, ControlRole::fieldLabel));
    version->addWidget(add(about_.lblVersion, ControlRole::fieldLabel), 1);
    column->addLayout(version);
    column->addSpacing(8);
    for (Label* label : {&about_.lblCopyright, &about_.lblTrademark})
        column->addWidget(add(*label, ControlRole::body));
    column->addSpacing(8);
    for (Label* label :
         {&about_.lblKelmaAddress1, &about_.lblKelmaAddress2, &about_.lblKelmaAddress3})
        column->addWidget(add(*label, ControlRole::body));
    return texts;
}

void AboutDialog::popUpLanguages()
{
    QMenu menu(QString::fromStdString(about_.mnuSelectLanguage()), this);
    menu.addSection(menu.title());
    const auto& languages = about_.mnuLanguageList();
    for (std::size_t index = 0; index < languages.size(); ++index)
        menu.addAction(QString::fromStdString(languages[index].caption))
            ->setData(static_cast<int>(index));
    const QAction* chosen = menu.exec(language_->mapToGlobal(QPoint(0, language_->height())));
    if (!chosen) return;
    const auto choose = [this, index = chosen->data().toInt()] {
        about_.mnuLanguageList_Click(index);
    };
    aroundChange ? aroundChange(choose) : choose();
}

void AboutDialog::showForm()
{
    setWindowTitle(QString::fromStdString(about_.caption()));
    language_->setText(QString::fromStdString(about_.lblChangeLanguage.caption()));
    if (about_.mousePointer() == frmAbout::hourglass)
        setCursor(Qt::WaitCursor);
    else
        unsetCursor();
    for (const auto& view : views_)
        if (!view->captions().isEmpty()) view->showCaptions(view->captions());
    emit formShown();
    // The texts come with the next events, and a language may need more room than the one before.
    QMetaObject::invokeMethod(this, &AboutDialog::grow, Qt::QueuedConnection);
    if (!about_.visible()) QDialog::accept();
}

void AboutDialog::grow()
{
    for (const auto& view : views_) view->showState();
    layout()->activate();
    const int width = std::max(this->width(), layout()->totalMinimumSize().width());
    const int height = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width)
                                                     : layout()->totalMinimumSize().height();
    resize(width, std::max(this->height(), height));
}

void AboutDialog::reject()
{
    about_.cmdOK_Click();
}

} // namespace desktop
