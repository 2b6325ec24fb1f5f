#include "hosts/desktop/desktop_services.h"

#include "hosts/desktop/support/person.h"
#include "hosts/desktop/support/test_window.h"
#include "hosts/desktop/window/help_topics.h"
#include "platform/desktop_contract.h"
#include "support/places.h"

#include <QMessageBox>

#include <functional>

namespace desktop {
namespace {

/// A person in front of a window.
class PersonAtAWindow {
public:
    PersonAtAWindow()
    {
        window_.show();
        desktop_.setWindow(&window_);
        desktop_.setManual(std::string(built::data) + "/help");
    }

    Desktop& desktop() { return desktop_; }

    void personCloses()
    {
        seen_ = false;
        person::answerNextDialog([this](QWidget& dialog) {
            seen_ = qobject_cast<QMessageBox*>(&dialog) != nullptr;
            person::press(Qt::Key_Return);
        });
    }
    bool boxWasSeen() const { return seen_; }

    std::string personPicksFolder() { return picks(machine_.makeFolder("Out")); }
    std::string personPicksFile() { return picks(machine_.write("diag_a.txt")); }
    void personCancels()
    {
        person::answerNextDialog([](QWidget&) { person::press(Qt::Key_Escape); });
    }

    void post(std::function<void()> event)
    {
        QMetaObject::invokeMethod(&application_, std::move(event), Qt::QueuedConnection);
    }

    bool showsHelp() const { return true; }
    int helpTopic() const { return helpTopic::about; }

private:
    static std::string picks(const std::string& path)
    {
        person::pickNext(path);
        return path;
    }

    QApplication& application_ = testApplication();
    TemporaryFolder machine_;
    QWidget window_;
    DesktopServices desktop_;
    bool seen_ = false;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Window, DesktopContract, PersonAtAWindow);

} // namespace
} // namespace desktop
