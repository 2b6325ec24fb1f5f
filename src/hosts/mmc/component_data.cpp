#include "hosts/mmc/component_data.h"

#include "hosts/mmc/com/task_text.h"
#include "hosts/mmc/component.h"

namespace mmc {

/// A console that lets go without a word takes its tool along.
ComponentData::~ComponentData()
{
    guarded([&]() -> HRESULT {
        host().stop();
        return S_OK;
    });
}

HRESULT WINAPI ComponentData::Initialize(IUnknown* console)
{
    return guarded([&]() -> HRESULT {
        if (!console) return E_POINTER;
        return host().start(console, static_cast<IComponentData*>(this));
    });
}

HRESULT WINAPI ComponentData::CreateComponent(IComponent** component)
{
    return guarded([&]() -> HRESULT {
        if (!component) return E_POINTER;
        *component = nullptr;
        if (!host().runs()) return E_UNEXPECTED;
        *component = makeObject<Component>(host_).release();
        return S_OK;
    });
}

HRESULT WINAPI ComponentData::Notify(IDataObject* object, MMC_NOTIFY_TYPE event, LPARAM first,
                                     LPARAM second)
{
    return guarded([&]() -> HRESULT {
        const auto held = host_;
        const auto item = host().itemOf(object);
        if (!item) return S_FALSE;
        switch (event) {
        case MMCN_EXPAND:
            if (first) host().expanded(*item, second);
            return S_OK;
        case MMCN_REMOVE_CHILDREN:
            host().nodes().emptied(*item);
            return S_OK;
        case MMCN_REFRESH:
            if (ResultPane* shown = pane()) host().refresh(*shown, object);
            return S_OK;
        case MMCN_SNAPINHELP:
        case MMCN_CONTEXTHELP:
        case MMCN_HELP:
            if (!pane()) return S_FALSE;
            host().help(*pane(), event == MMCN_SNAPINHELP ? Help::onSnapIn : Help::onNode);
            return S_OK;
        default:
            return S_FALSE;
        }
    });
}

HRESULT WINAPI ComponentData::Destroy()
{
    return guarded([&]() -> HRESULT {
        host().stop();
        return S_OK;
    });
}

HRESULT WINAPI ComponentData::QueryDataObject(MMC_COOKIE cookie, DATA_OBJECT_TYPES,
                                              IDataObject** object)
{
    return guarded([&]() -> HRESULT {
        if (!object) return E_POINTER;
        *object = host().dataObject(cookie).release();
        return *object ? S_OK : E_INVALIDARG;
    });
}

HRESULT WINAPI ComponentData::GetDisplayInfo(SCOPEDATAITEM* asked)
{
    return guarded([&]() -> HRESULT {
        if (!asked) return E_POINTER;
        return host().nodes().describe(*asked) ? S_OK : E_INVALIDARG;
    });
}

HRESULT WINAPI ComponentData::CompareObjects(IDataObject* left, IDataObject* right)
{
    return guarded([&]() -> HRESULT {
        return subjectOf(left, host_.get()) == subjectOf(right, host_.get()) ? S_OK : S_FALSE;
    });
}

HRESULT WINAPI ComponentData::GetHelpTopic(LPOLESTR* file)
{
    return guarded([&]() -> HRESULT {
        if (!file) return E_POINTER;
        *file = nullptr;
        if (!host().runs() || host().model().identity().helpFileName.empty()) return S_FALSE;
        *file = taskText(host().model().identity().helpFileName);
        return S_OK;
    });
}

HRESULT WINAPI ComponentData::GetLinkedTopics(LPOLESTR* files)
{
    if (!files) return E_POINTER;
    *files = nullptr;
    return S_FALSE;
}

} // namespace mmc
