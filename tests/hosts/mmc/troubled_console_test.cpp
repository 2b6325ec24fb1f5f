// A console that refuses what it is asked, ends or comes back in the middle of a call, or calls
// what is no longer there: the snap-in bears it, and lets everything go at the end.
#include "hosts/mmc/com/interface_ids.h"
#include "hosts/mmc/console/console.h"
#include "hosts/mmc/module.h"
#include "hosts/mmc/tried_snap_in.h"

#include <gmock/gmock.h>

#include <climits>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace mmc {
namespace {

using stand_in::Window;
using testing::Each;
using testing::HasSubstr;
using testing::Not;

class TroubledConsole : public testing::Test {
protected:
    using Trouble = std::function<bool(stand_in::Console& console, const std::string& method)>;

    std::unique_ptr<stand_in::Console> console(bool prefersTaskPads)
    {
        stand_in::ConsoleOptions options;
        options.prefersTaskPads = prefersTaskPads;
        return std::make_unique<stand_in::Console>(
            [this](REFIID id, void** object) { return make(id, object); }, tried_.snapIn.classId,
            options);
    }

    HRESULT make(REFIID id, void** object)
    {
        IClassFactory* factory = nullptr;
        HRESULT result = classObject(tried_.snapIn, tried_.snapIn.classId, idOf<IClassFactory>,
                                     reinterpret_cast<void**>(&factory));
        if (FAILED(result)) return result;
        result = factory->CreateInstance(nullptr, id, object);
        factory->Release();
        return result;
    }

    /// All that a person does in two windows, as far as the console's state lets one.
    void useAll(stand_in::Console& console)
    {
        tried_.work = [](Console& model) {
            auto& items = model.scopeItems();
            model.expand(items.item("two"));
            model.currentView().select(items.item("two leaf"));
            items.addChild("leaf", "new", items.item("two")).displayName("new");
            model.currentView().select(items.item("new"));
            items.item("new").displayName("newer");
            items.remove("new");
        };
        if (!console.load()) return;
        Window& window = console.window();
        for (const char* path : {"one", "one/one leaf"}) window.select(path);
        window.sort(0, true);
        window.rows();
        window.refresh();
        window.help();
        Window& second = console.openWindow();
        second.select("one/one leaf");
        window.refresh();
        window.contextMenu();
        window.choose("Work");
        window.select("");
        window.tasks();
        window.clickTask("First");
        window.doubleClick(0);
        console.closeWindow(1);
        console.pumpFor(1);
    }

    /// Does all once for each call of the console's methods, with the trouble in that one.
    void troubleEach(bool prefersTaskPads, const Trouble& trouble)
    {
        const int calls = useAllWithTrouble(prefersTaskPads, -1, trouble);
        EXPECT_LT(30, calls);
        for (int troubled = 0; troubled < calls; ++troubled)
            useAllWithTrouble(prefersTaskPads, troubled, trouble);
    }

    /// Gives how many calls there were.
    int useAllWithTrouble(bool prefersTaskPads, int troubled, const Trouble& trouble)
    {
        std::string method;
        const auto made = console(prefersTaskPads);
        int call = 0;
        made->contract().admits = [&](const char* name) {
            if (call++ != troubled) return true;
            method = name;
            return trouble(*made, name);
        };
        useAll(*made);
        made->contract().admits = nullptr;
        made->close();
        SCOPED_TRACE(method + ", call " + std::to_string(troubled));
        expectAllGone(*made);
        return call;
    }

    /// What the console notes of its own trouble is nobody's fault.
    void expectAllGone(const stand_in::Console& console)
    {
        for (const std::string& breach : console.breaches()) {
            EXPECT_THAT(breach, Not(HasSubstr("fault")));
            EXPECT_THAT(breach, Not(HasSubstr("exception")));
            EXPECT_THAT(breach, Not(HasSubstr("keeps")));
            EXPECT_THAT(breach, Not(HasSubstr("referenced")));
            EXPECT_THAT(breach, Not(HasSubstr("too often")));
            EXPECT_THAT(breach, Not(HasSubstr("leaves it")));
        }
        EXPECT_EQ(0, tried_.toolsAlive);
    }

    TriedSnapIn tried_;
};

TEST_F(TroubledConsole, MayRefuseAnyCall)
{
    const auto refuse = [](stand_in::Console&, const std::string&) { return false; };
    troubleEach(true, refuse);
    troubleEach(false, refuse);
}

TEST_F(TroubledConsole, MayEndInAnyCall)
{
    const auto end = [](stand_in::Console& console, const std::string&) {
        console.data()->Destroy();
        return true;
    };
    troubleEach(true, end);
    troubleEach(false, end);
}

TEST_F(TroubledConsole, MayComeBackInAnyCall)
{
    const auto comeBack = [](stand_in::Console& console, const std::string&) {
        if (console.windowCount() == 0) return true;
        Window& window = console.window();
        window.notifySelected(MMCN_REFRESH, 0, 0, "MMCN_REFRESH");
        window.notifySelected(MMCN_SELECT, MAKELONG(TRUE, TRUE), 0, "MMCN_SELECT");
        window.contextMenu();
        return true;
    };
    troubleEach(true, comeBack);
    troubleEach(false, comeBack);
}

TEST_F(TroubledConsole, MayTryToBeginTwiceAndAgainAfterItsEnd)
{
    const auto made = console(true);
    ASSERT_TRUE(made->load());
    IUnknown* const object = made->window().consoleObject();

    EXPECT_TRUE(FAILED(made->data()->Initialize(object)));
    EXPECT_TRUE(FAILED(made->window().component()->Initialize(static_cast<IConsole*>(object))));
    made->data()->Destroy();
    EXPECT_TRUE(FAILED(made->data()->Initialize(object)));
    EXPECT_EQ(1, tried_.unloaded);

    made->close();
    expectAllGone(*made);
}

TEST_F(TroubledConsole, MayPassAnything)
{
    const auto made = console(false);
    const auto other = console(false);
    ASSERT_TRUE(made->load());
    ASSERT_TRUE(other->load());
    made->window().select("one/one leaf");
    IComponentData& data = *made->data();
    IComponent& component = *made->window().component();
    const auto foreign = other->scopeObject(*other->tree().find(other->tree().root()));
    std::vector<IDataObject*> objects{nullptr, foreign.get()};
    for (LONG_PTR special = -3; special < 0; ++special)
        objects.push_back(reinterpret_cast<IDataObject*>(special));

    tried_.told.clear();
    for (IDataObject* object : objects) {
        for (int event = 0x8000; event < 0x8030; ++event) {
            data.Notify(object, static_cast<MMC_NOTIFY_TYPE>(event), 0, 0);
            component.Notify(object, static_cast<MMC_NOTIFY_TYPE>(event), 0, 0);
        }
        data.CompareObjects(object, nullptr);
        component.CompareObjects(object, foreign.get());
    }
    EXPECT_THAT(tried_.told, Each(HasSubstr("help")));

    EXPECT_EQ(E_POINTER, data.GetDisplayInfo(nullptr));
    EXPECT_EQ(E_POINTER, component.GetDisplayInfo(nullptr));
    EXPECT_EQ(E_POINTER, data.CreateComponent(nullptr));
    for (const MMC_COOKIE cookie : {MMC_COOKIE{-1}, MMC_COOKIE{77}, MMC_COOKIE{1} << 40}) {
        IDataObject* object = nullptr;
        EXPECT_EQ(E_POINTER, data.QueryDataObject(cookie, CCT_SCOPE, nullptr));
        EXPECT_EQ(E_INVALIDARG, data.QueryDataObject(cookie, CCT_SCOPE, &object));
        LPOLESTR type = nullptr;
        long options = 0;
        EXPECT_EQ(E_INVALIDARG, component.GetResultViewType(cookie, &type, &options));
        EXPECT_EQ(E_POINTER, component.GetResultViewType(cookie, nullptr, nullptr));
    }
    for (const int number : {INT_MIN, -1, 3, INT_MAX}) {
        RESULTDATAITEM asked{};
        asked.mask = RDI_STR | RDI_IMAGE;
        asked.nIndex = number;
        component.GetDisplayInfo(&asked);
        ASSERT_NE(nullptr, asked.str);
        EXPECT_EQ(std::wstring(), asked.str);
        asked.nIndex = 0;
        asked.nCol = number;
        component.GetDisplayInfo(&asked);
        EXPECT_EQ(std::wstring(), asked.str);
        const auto rows = stand_in::asked<IResultOwnerData>(&component, idOf<IResultOwnerData>);
        EXPECT_EQ(S_FALSE, rows->SortItems(number, 0, 0));
        const auto menu = stand_in::asked<IExtendContextMenu>(&component, idOf<IExtendContextMenu>);
        EXPECT_EQ(S_FALSE, menu->Command(number == 3 ? 300 : number, nullptr));
        EXPECT_EQ(E_POINTER, menu->AddMenuItems(nullptr, nullptr, nullptr));
    }

    made->close();
    other->close();
    expectAllGone(*made);
}

} // namespace
} // namespace mmc
