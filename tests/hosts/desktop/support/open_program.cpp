#include "hosts/desktop/support/open_program.h"

#include "hosts/desktop/sheets/sheet_dialog.h"
#include "hosts/desktop/support/person.h"
#include "hosts/desktop/window/task_pad_view.h"
#include "support/places.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QTest>

#include <stdexcept>

namespace desktop {

OpenProgram::OpenProgram(std::size_t lines, LogFields fields)
    : server((testApplication(), lines), fields),
      settings(QString::fromStdString(server.folder() / "console.ini"), QSettings::IniFormat),
      program(settings, built::data, HostFacts{})
{
    window().show();
    program.openSite(server.site());
    window().activateWindow();
    if (!QTest::qWaitForWindowActive(&window())) throw std::runtime_error("no active window");
    settle();
}

OpenProgram::~OpenProgram()
{
    person::leave();
    program.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

SheetDialog& OpenProgram::sheet()
{
    SheetDialog* shown = pane().sheet();
    if (!shown) throw std::runtime_error("no sheet is on show");
    return *shown;
}

void OpenProgram::clickCard(const char* key)
{
    window().showNode("Static Node");
    settle();
    auto* card =
        pane().taskPad().findChild<QAbstractButton*>(QStringLiteral("task-") + QLatin1String(key));
    if (!card) throw std::runtime_error("no card for the task");
    person::click(*card);
}

void OpenProgram::showLog(const std::string& process)
{
    if (!window().showNode(server.currentLog(process)))
        throw std::runtime_error("no node for the log of " + process);
    settle();
}

MomentField& OpenProgram::picker(const QWidget& inside, MomentField::Part part)
{
    for (auto* field : inside.findChildren<MomentField*>())
        if (field->isVisible() && field->part() == part) return *field;
    throw std::runtime_error("the page asks for no date and time");
}

QLineEdit& OpenProgram::field(const QWidget& inside, const char* accessibleName)
{
    for (auto* edit : inside.findChildren<QLineEdit*>())
        if (edit->accessibleName() == QLatin1String(accessibleName)) return *edit;
    throw std::runtime_error(accessibleName);
}

} // namespace desktop
