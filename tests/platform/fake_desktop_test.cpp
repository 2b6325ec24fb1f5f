#include "platform/desktop_contract.h"
#include "support/fakes/fake_desktop.h"

#include <functional>

namespace {

class FakePerson {
public:
    Desktop& desktop() { return desktop_; }

    void personCloses() { seen_ = desktop_.messages().size(); }
    bool boxWasSeen() const { return desktop_.messages().size() == seen_ + 1; }

    std::string personPicksFolder() { return picks("C:\\Out"); }
    std::string personPicksFile() { return picks("C:\\Logs\\a.txt"); }
    void personCancels() { desktop_.picks(""); }

    void post(std::function<void()> event) { desktop_.onPump(std::move(event)); }

    bool showsHelp() const { return true; }
    int helpTopic() const { return 100; }

private:
    std::string picks(const std::string& path)
    {
        desktop_.picks(path);
        return path;
    }

    FakeDesktop desktop_;
    std::size_t seen_ = 0;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, DesktopContract, FakePerson);

} // namespace
