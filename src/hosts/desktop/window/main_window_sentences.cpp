#include "hosts/common/log_folder.h"
#include "hosts/common/look/notice_bar.h"
#include "hosts/desktop/open_tool.h"
#include "hosts/desktop/sheets/sheet_dialog.h"
#include "hosts/desktop/window/main_window.h"

#include <QStatusBar>

#include <utility>

namespace desktop {

void MainWindow::showProblem(LiveSentence sentence)
{
    notice_->say(std::move(sentence));
}

QString MainWindow::problem() const
{
    return notice_->sentence();
}

void MainWindow::sayWaiting(const std::string& clause)
{
    statusBar()->showMessage(QString::fromStdString(clause), sayMilliseconds);
    statusBar()->repaint();
}

void MainWindow::sayReadOnly()
{
    showProblem([this] {
        if (!tool_ || !tool_->looksOnly()) return QString();
        return tr("This site is read-only: logs can be read, but traces and settings cannot be "
                  "changed. Make its folder writable, or open a copy.");
    });
}

/// Until the tool has its connection after all.
void MainWindow::sayWithoutDatabase(const std::string& why)
{
    QString reason = QString::fromStdString(why);
    if (reason.endsWith(QLatin1Char('.'))) reason.chop(1);
    showProblem([this, reason] {
        if (!tool_ || tool_->context().g_connection.state() != 0) return QString();
        return tr("The server's database could not be opened: %1. Logs can be read and gathered, "
                  "but traces and settings cannot be changed.")
            .arg(reason);
    });
}

void MainWindow::checkSite()
{
    if (!tool_) return;
    // What the person was told to mend may be mended.
    if (tool_->present()) return notice_->renew();
    showProblem([this] {
        if (!tool_ || tool_->present()) return QString();
        return tr("The site %1 is no longer there. Put the folder back and press F5, or open "
                  "another site with Ctrl+Shift+O.")
            .arg(QString::fromStdString(tool_->site().folder()));
    });
}

void MainWindow::sayLanguage()
{
    if (!languageProblem().isEmpty()) showProblem([this] { return languageProblem(); });
}

/// Of a language other than English without its texts; the tool goes on in English.
QString MainWindow::languageProblem() const
{
    constexpr int english = 9; ///< the primary language in the low bits of an identifier
    constexpr int primaryLanguage = 0x3ff;
    if (!tool_) return {};
    const auto& language = tool_->context().language;
    if (language.g_hResourceLibrary != 0 || language.g_lngCurrentLanguage == 0) return {};
    if ((language.g_lngCurrentLanguage & primaryLanguage) == english) return {};
    return tr("The catalogue of your language (%1) is missing or damaged, so the tool's texts are "
              "in English. Choose another language in the about box (Ctrl+F1).")
        .arg(language.g_lngCurrentLanguage);
}

void MainWindow::sayToolLog()
{
    const std::string why = tool_ ? tool_->takeToolLogFailure() : "";
    if (why.empty()) return;
    showProblem([why] {
        return tr("The tool's own log can't be written: %1. The tool goes on without it.")
            .arg(QString::fromStdString(why));
    });
}

/// Said once, until it has changed.
void MainWindow::sayUnlistedLogs()
{
    const auto trouble = [this]() -> std::optional<Sentence> {
        // Of a site that has gone, more was said already.
        if (!tool_ || !tool_->present()) return std::nullopt;
        return logFolderTrouble(tool_->context(), tool_->report());
    };
    const auto now = trouble();
    const std::string why = now ? now->text() : "";
    if (std::exchange(unlistedLogs_, why) == why || why.empty()) return;
    showProblem([trouble] {
        const auto still = trouble();
        return still ? inLanguage(*still) : QString();
    });
}

void MainWindow::tellUndone(SheetDialog* dialog)
{
    const LiveSentence sentence = undone_.take(dialog ? &dialog->sheet() : nullptr);
    // Of a site that is only read, or that has gone, more was said already.
    if (tool_ && tool_->present() && !tool_->looksOnly()) sayWhereThePersonIs(dialog, sentence);
}

/// In the sheet, or in the window when the sheet has gone.
void MainWindow::sayWhereThePersonIs(SheetDialog* dialog, const LiveSentence& sentence)
{
    if (!sentence) return;
    if (dialog && dialog->isVisible())
        dialog->say(sentence);
    else
        showProblem(sentence);
}

} // namespace desktop
