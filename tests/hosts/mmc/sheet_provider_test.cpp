// Sheets in a console that makes none itself, and those that can't be made.
#include "hosts/mmc/console/console_object.h"
#include "hosts/mmc/loaded_snap_in.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace stand_in {

namespace {

/// The system's maker of sheets while it lives: for whoever asks, `provider`.
class NodeManager final : public Handed<IClassFactory> {
public:
    NodeManager(Contract& contract, IPropertySheetProvider& provider)
        : Handed(contract), provider_(provider)
    {
        registered_ = CoRegisterClassObject(nodeManagerClass, this, CLSCTX_INPROC_SERVER,
                                            REGCLS_MULTIPLEUSE, &cookie_);
    }
    ~NodeManager() override { CoRevokeClassObject(cookie_); }

    HRESULT registered() const { return registered_; }

    HRESULT WINAPI CreateInstance(IUnknown*, REFIID id, void** object) override
    {
        *object = nullptr;
        if (id != iid::propertySheetProvider && id != IID_IUnknown) return E_NOINTERFACE;
        provider_.AddRef();
        *object = &provider_;
        return S_OK;
    }
    HRESULT WINAPI LockServer(WINBOOL) override { return S_OK; }

private:
    void* interfaceOf(REFIID id) override
    {
        return id == IID_IUnknown || id == IID_IClassFactory ? this : nullptr;
    }

    IPropertySheetProvider& provider_;
    DWORD cookie_ = 0;
    HRESULT registered_ = E_FAIL;
};

/// Takes a sheet's pages, and then can't show it.
class FailingProvider final : public Handed<IPropertySheetProvider> {
public:
    using Handed::Handed;

    /// What it was asked for.
    std::vector<std::string> calls;

    HRESULT WINAPI CreatePropertySheet(LPCWSTR, boolean, MMC_COOKIE, LPDATAOBJECT, DWORD) override
    {
        calls.push_back("create");
        return S_OK;
    }
    HRESULT WINAPI FindPropertySheet(MMC_COOKIE, LPCOMPONENT, LPDATAOBJECT) override
    {
        return S_FALSE;
    }
    HRESULT WINAPI AddPrimaryPages(LPUNKNOWN, WINBOOL, HWND, WINBOOL) override
    {
        calls.push_back("pages");
        return S_OK;
    }
    HRESULT WINAPI AddExtensionPages() override { return S_OK; }
    HRESULT WINAPI Show(LONG_PTR, int) override
    {
        calls.push_back("show");
        return E_OUTOFMEMORY;
    }

private:
    void* interfaceOf(REFIID id) override
    {
        return id == IID_IUnknown || id == iid::propertySheetProvider ? this : nullptr;
    }
};

class SheetProviders : public SnapInTest {
protected:
    Console& openWithoutSheets()
    {
        ConsoleOptions options;
        options.givesSheets = false;
        return open(options);
    }

    void expectThatTheToolTakesWishes()
    {
        console_->window().clickTask("Start New Log Files");
        EXPECT_EQ("New log files started.", console_->window().statusText());
    }
};

TEST_F(SheetProviders, OfTheSystemShowAWizardWhereTheConsoleDoesNot)
{
    Console& console = openWithoutSheets();
    ConsoleObject maker(console, nullptr);
    {
        const NodeManager manager(console.contract(), maker);
        ASSERT_EQ(S_OK, manager.registered());
        console.withSheet([&] { console.window().clickTask("Configure Macro Traces"); },
                          [](Sheet& sheet) {
                              EXPECT_EQ("Configure Macro Traces Wizard", sheet.title());
                              sheet.next();
                              sheet.cancel();
                          });
    }

    EXPECT_EQ(0, maker.references());
    EXPECT_THAT(console.boxes(), IsEmpty());
    close();
}

TEST_F(SheetProviders, ThatFailAreToldToThePersonAndTheSheetIsOver)
{
    Console& console = openWithoutSheets();
    const std::string before = registry();
    FailingProvider failing(console.contract());
    {
        const NodeManager manager(console.contract(), failing);
        ASSERT_EQ(S_OK, manager.registered());
        for (const char* task : {"Configure Macro Traces", "Configure Log Settings"}) {
            console.window().clickTask(task);
            console.pumpFor(200);
        }
    }

    EXPECT_THAT(failing.calls, ElementsAre("create", "pages", "show", "create", "pages", "show"));
    EXPECT_EQ(0, failing.references());
    ASSERT_EQ(2U, console.boxes().size());
    EXPECT_THAT(console.boxes()[0].text, HasSubstr("can't show \"Configure Macro Traces Wizard\""));
    EXPECT_THAT(console.boxes()[1].text, HasSubstr("can't show \"Log Settings\""));
    EXPECT_EQ(before, registry());
    expectThatTheToolTakesWishes();
    close();
    EXPECT_TRUE(toolsHaveGone());
}

TEST_F(SheetProviders, AreMissedWithASentence)
{
    Console& console = openWithoutSheets();
    console.window().clickTask("Gather Log Files");
    ASSERT_TRUE(console.pumpUntil([&] { return !console.boxes().empty(); }, 3000));

    EXPECT_THAT(console.boxes()[0].text, HasSubstr("can't show \"Gather Logs Wizard\""));
    expectThatTheToolTakesWishes();
}

} // namespace

} // namespace stand_in
