#pragma once

#include "hosts/mmc/com/com_object.h"

#include <string>

namespace mmc {

/// What a data object of this adapter stands for.
struct Subject {
    const void* host = nullptr; ///< the console's host that made it; compared, never followed
    MMC_COOKIE cookie = 0;      ///< of a scope node
    int row = -1; ///< of the list on show for the node, from 0; -1 for the node itself

    friend bool operator==(const Subject&, const Subject&) = default;
};

/// The interface by which this adapter knows its own data objects.
struct IOwnDataObject : IUnknown {
    virtual const Subject& subject() const = 0;
};

template <>
struct InterfaceId<IOwnDataObject> {
    static constexpr GUID value{
        0x1769ED8B, 0x26A7, 0x420C, {0xAF, 0xC7, 0x55, 0x3B, 0x31, 0xA6, 0x37, 0xB3}};
};

/// What every data object tells the console.
struct NodeFacts {
    CLSID snapIn;
    GUID nodeType;
    std::wstring displayName;
};

/// Stands for a node, or a row, wherever the console hands one on.
class DataObject final : public ComObject<IDataObject, IOwnDataObject> {
public:
    DataObject(const Subject& subject, NodeFacts facts)
        : subject_(subject), facts_(std::move(facts))
    {}

    const Subject& subject() const override { return subject_; }

    HRESULT WINAPI GetData(FORMATETC* format, STGMEDIUM* medium) override;
    HRESULT WINAPI GetDataHere(FORMATETC* format, STGMEDIUM* medium) override;
    HRESULT WINAPI QueryGetData(FORMATETC* format) override;
    HRESULT WINAPI GetCanonicalFormatEtc(FORMATETC*, FORMATETC*) override { return E_NOTIMPL; }
    HRESULT WINAPI SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
    HRESULT WINAPI EnumFormatEtc(DWORD, IEnumFORMATETC**) override { return E_NOTIMPL; }
    HRESULT WINAPI DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override
    {
        return OLE_E_ADVISENOTSUPPORTED;
    }
    HRESULT WINAPI DUnadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
    HRESULT WINAPI EnumDAdvise(IEnumSTATDATA**) override { return OLE_E_ADVISENOTSUPPORTED; }

private:
    std::string bytesOf(CLIPFORMAT format) const;

    Subject subject_;
    NodeFacts facts_;
};

/// What a data object stands for, if `host` made it; else, and for none, a subject of no host.
Subject subjectOf(IDataObject* object, const void* host);

/// A GUID as the registry writes it.
std::wstring guidText(const GUID& id);

} // namespace mmc
