#pragma once

#include "hosts/mmc/extensions.h"

namespace mmc {

/// The snap-in in one console, as the console made it.
class ComponentData final : public Extensions<IComponentData, ISnapinHelp2> {
public:
    explicit ComponentData(const SnapIn& snapIn) : Extensions(Host::make(snapIn)) {}
    ~ComponentData() override;

    HRESULT WINAPI Initialize(IUnknown* console) override;
    HRESULT WINAPI CreateComponent(IComponent** component) override;
    HRESULT WINAPI Notify(IDataObject* object, MMC_NOTIFY_TYPE event, LPARAM first,
                          LPARAM second) override;
    HRESULT WINAPI Destroy() override;
    HRESULT WINAPI QueryDataObject(MMC_COOKIE cookie, DATA_OBJECT_TYPES type,
                                   IDataObject** object) override;
    HRESULT WINAPI GetDisplayInfo(SCOPEDATAITEM* asked) override;
    HRESULT WINAPI CompareObjects(IDataObject* left, IDataObject* right) override;

    HRESULT WINAPI GetHelpTopic(LPOLESTR* file) override;
    HRESULT WINAPI GetLinkedTopics(LPOLESTR* files) override;

private:
    ResultPane* pane() override { return host().activePane(); }
};

} // namespace mmc
