#pragma once

#include "hosts/mmc/console/console.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>

namespace stand_in {

/// The library with the snap-in on a site, as the tests' programs find it beside them.
class SiteModule {
public:
    static SiteModule& get();

    static const CLSID snapIn;
    static const CLSID about;
    static const GUID staticNode;

    const std::wstring& path() const { return path_; }

    /// What `DllGetClassObject` and its factory make.
    HRESULT make(REFCLSID asked, REFIID id, void** object) const;

    HRESULT callWithout(const char* entryPoint) const;

private:
    SiteModule();

    std::wstring path_;
    HMODULE module_;
};

/// A sample server of a test's own, and consoles with the snap-in on it. At its end every console
/// that was opened must have found nothing wrong.
class SnapInTest : public testing::Test {
protected:
    explicit SnapInTest(std::size_t lines = 400);
    ~SnapInTest() override;

    /// A console that loaded the snap-in. One at a time is kept; `another` lives beside it.
    Console& open(ConsoleOptions options = {});
    std::unique_ptr<Console> another(ConsoleOptions options = {});

    /// Ends the console of `open`, and expects that nothing was wrong.
    void close();
    static void expectObedience(Console& console);

    /// Has the console of `open` end as soon as something holds, in whatever loop of messages its
    /// thread then is.
    void endWhen(std::function<bool()> holds);

    std::string registry() const { return folder_.read("site/registry.reg"); }
    std::string siteFile(const std::string& name) const { return folder_.read("site/" + name); }

    /// Puts a log of a process into the folder of the server's logs.
    void writeLog(const std::string& name, const std::string& lines) const;

    /// Whether no console's tool is there any more: none holds its log open.
    bool toolsHaveGone() const;

private:
    std::unique_ptr<TemporaryFolder> held_ = std::make_unique<TemporaryFolder>();

protected:
    const TemporaryFolder& folder_ = *held_;
    std::unique_ptr<Console> console_;
};

} // namespace stand_in
