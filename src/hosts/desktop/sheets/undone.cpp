#include "hosts/desktop/sheets/undone.h"

#include "console/open_sheet.h"
#include "controls/combo_box.h"

#include <QObject>

#include <algorithm>
#include <utility>

namespace desktop {

namespace {

/// The routines that do what the person chose: they write, or start the viewer. Errors of the
/// others leave something out of sight, and gathers tell of theirs themselves.
constexpr std::string_view doingRoutines[] = {
    "SetConfigurationSetting",
    "SetFlags",
    "changeEventLogLanguage",
    "cmdLaunchQRV_Click",
    "configureMacroTrace",
    "configureMicroTrace",
    "disableAllTraces",
    "disableMacroTrace",
    "enableMacroTrace",
    "enableStandardTraces",
    "getFlags",
    "mnuStartNewLogFiles_Click",
    "openOrvanDB",
    "PropertyPage_ApplyChanges",
    "ResultViews_TaskClick",
    "recordMacroTrace",
    "setAuditParameters",
};

/// The space for logs as the person typed it, where that is no number; else nothing.
std::optional<QString> wrongMegabytes(const OpenSheet* sheet)
{
    if (!sheet || sheet->currentPosition() == 0) return std::nullopt;
    const auto* space =
        dynamic_cast<const ComboBox*>(sheet->currentPage().control("comboMaxSpace"));
    if (!space) return std::nullopt;
    const QString typed = QString::fromStdString(space->text()).trimmed();
    bool number = false;
    typed.toInt(&number);
    return number ? std::nullopt : std::optional(typed);
}

} // namespace

void Undone::note(const RunTimeError& error, std::string_view procName)
{
    const auto name = procName.substr(procName.find(']') + 1);
    const bool does = std::find(std::begin(doingRoutines), std::end(doingRoutines), name) !=
                      std::end(doingRoutines);
    if (does && !why_) why_ = error.description();
}

LiveSentence Undone::take(const OpenSheet* sheet)
{
    const auto why = std::exchange(why_, std::nullopt);
    if (!why) return {};
    if (const auto typed = wrongMegabytes(sheet))
        return [typed = *typed] {
            return QObject::tr("\"%1\" is not a number of megabytes, so the space for diagnostic "
                               "files stays as it was.")
                .arg(typed);
        };
    QString reason = QString::fromStdString(*why);
    if (reason.endsWith(QLatin1Char('.'))) reason.chop(1);
    return [reason] { return QObject::tr("Not all of it was done: %1.").arg(reason); };
}

} // namespace desktop
