#include "hosts/common/look/help_window.h"

#include "hosts/common/look/icons.h"
#include "hosts/common/look/interface_language.h"
#include "hosts/common/look/screen_room.h"

#include <QAction>
#include <QFile>
#include <QFileInfo>
#include <QTextBrowser>
#include <QToolBar>

namespace {

/// The page of a topic by the manual's list "number page"; the first one for a topic not listed.
QString pageOf(const QString& folder, int topic)
{
    QFile topics(folder + QStringLiteral("/topics.txt"));
    QString first;
    if (!topics.open(QIODevice::ReadOnly | QIODevice::Text)) return first;
    while (!topics.atEnd()) {
        const QString line = QString::fromUtf8(topics.readLine()).trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) continue;
        const QString page = line.section(QLatin1Char(' '), 1).trimmed();
        if (first.isEmpty()) first = page;
        if (line.section(QLatin1Char(' '), 0, 0).toInt() == topic) return page;
    }
    return first;
}

void name(QAction* action, const QString& text)
{
    action->setText(text);
    action->setToolTip(
        QStringLiteral("%1 (%2)").arg(text, action->shortcut().toString(QKeySequence::NativeText)));
}

} // namespace

HelpWindow::HelpWindow(QWidget* parent)
    : QMainWindow(parent, Qt::Window), pages_(new QTextBrowser(this))
{
    setWindowIcon(toolIcon(QStringLiteral("console")));
    pages_->setOpenExternalLinks(false);
    pages_->setFrameShape(QFrame::NoFrame);
    pages_->document()->setDocumentMargin(24);
    pages_->document()->setDefaultStyleSheet(
        QStringLiteral("p, li, dd { line-height: 130%; } li { margin-top: 3px; }"));
    setCentralWidget(pages_);

    auto* bar = addToolBar(QString());
    bar->setMovable(false);
    const auto add = [&](const char* icon, const QKeySequence& key, auto slot) {
        auto* action = bar->addAction(toolIcon(QString::fromLatin1(icon)), QString(), pages_, slot);
        action->setShortcut(key);
        return action;
    };
    auto* back = add("back", QKeySequence(Qt::ALT | Qt::Key_Left), &QTextBrowser::backward);
    auto* forward = add("forward", QKeySequence(Qt::ALT | Qt::Key_Right), &QTextBrowser::forward);
    auto* contents = add("console", QKeySequence(Qt::ALT | Qt::Key_Home), &QTextBrowser::home);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(pages_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(pages_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    auto* close = new QAction(this);
    close->setShortcut(Qt::Key_Escape);
    connect(close, &QAction::triggered, this, &QWidget::close);
    addAction(close);
    resizeWithinScreen(*this, {860, 680});
    showInLanguage(this, [=, this] {
        setWindowTitle(tr("Help - Orvan Diagnostic Tool"));
        pages_->setAccessibleName(tr("Manual"));
        bar->setWindowTitle(tr("Help"));
        name(back, tr("Back"));
        name(forward, tr("Forward"));
        name(contents, tr("Contents"));
        close->setText(tr("Close"));
    });
}

bool HelpWindow::open(const QString& folder, int topic)
{
    const QString page = pageOf(folder, topic);
    const QString file = folder + QLatin1Char('/') + page;
    if (page.isEmpty() || !QFileInfo::exists(file)) return false;
    pages_->setSearchPaths({folder});
    pages_->setSource(QUrl::fromLocalFile(file));
    show();
    raise();
    activateWindow();
    return true;
}

QString HelpWindow::shownPage() const
{
    return pages_->source().fileName();
}
