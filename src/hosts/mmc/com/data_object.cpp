#include "hosts/mmc/com/data_object.h"

#include "hosts/mmc/com/call_guard.h"

#include <array>

namespace mmc {

namespace {

struct Formats {
    CLIPFORMAT nodeType = registered(CCF_NODETYPE);
    CLIPFORMAT nodeTypeText = registered(CCF_SZNODETYPE);
    CLIPFORMAT displayName = registered(CCF_DISPLAY_NAME);
    CLIPFORMAT snapIn = registered(CCF_SNAPIN_CLASSID);

    static CLIPFORMAT registered(const wchar_t* name)
    {
        return static_cast<CLIPFORMAT>(RegisterClipboardFormatW(name));
    }
};

const Formats& formats()
{
    static const Formats registered;
    return registered;
}

template <typename Value>
std::string bytesOfValue(const Value& value)
{
    return std::string(reinterpret_cast<const char*>(&value), sizeof value);
}

/// With the zero at its end.
std::string bytesOfText(const std::wstring& text)
{
    return std::string(reinterpret_cast<const char*>(text.c_str()),
                       (text.size() + 1) * sizeof(wchar_t));
}

/// Through a stream, which lets the memory grow where the caller's is too small.
HRESULT write(HGLOBAL memory, const std::string& bytes)
{
    constexpr BOOL keepMemory = FALSE;
    ComPointer<IStream> stream;
    const HRESULT made = CreateStreamOnHGlobal(memory, keepMemory, stream.out());
    if (FAILED(made)) return made;
    return stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
}

} // namespace

std::string DataObject::bytesOf(CLIPFORMAT format) const
{
    const Formats& known = formats();
    if (format == known.nodeType) return bytesOfValue(facts_.nodeType);
    if (format == known.nodeTypeText) return bytesOfText(guidText(facts_.nodeType));
    if (format == known.displayName) return bytesOfText(facts_.displayName);
    if (format == known.snapIn) return bytesOfValue(facts_.snapIn);
    return {};
}

HRESULT WINAPI DataObject::GetDataHere(FORMATETC* format, STGMEDIUM* medium)
{
    return guarded([&]() -> HRESULT {
        if (!format || !medium) return E_POINTER;
        const std::string bytes = bytesOf(format->cfFormat);
        if (bytes.empty()) return DV_E_FORMATETC;
        if (medium->tymed != TYMED_HGLOBAL || !medium->hGlobal) return DV_E_TYMED;
        return write(medium->hGlobal, bytes);
    });
}

HRESULT WINAPI DataObject::GetData(FORMATETC* format, STGMEDIUM* medium)
{
    return guarded([&]() -> HRESULT {
        if (!format || !medium) return E_POINTER;
        *medium = {};
        const std::string bytes = bytesOf(format->cfFormat);
        if (bytes.empty()) return DV_E_FORMATETC;
        if (!(format->tymed & TYMED_HGLOBAL)) return DV_E_TYMED;
        HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
        if (!memory) return E_OUTOFMEMORY;
        const HRESULT written = write(memory, bytes);
        if (FAILED(written)) {
            GlobalFree(memory);
            return written;
        }
        medium->tymed = TYMED_HGLOBAL;
        medium->hGlobal = memory;
        return S_OK;
    });
}

HRESULT WINAPI DataObject::QueryGetData(FORMATETC* format)
{
    return guarded([&]() -> HRESULT {
        if (!format) return E_POINTER;
        return bytesOf(format->cfFormat).empty() ? DV_E_FORMATETC : S_OK;
    });
}

Subject subjectOf(IDataObject* object, const void* host)
{
    // The console passes small numbers in the place of objects where it has none.
    if (!object || IS_SPECIAL_DATAOBJECT(object)) return {};
    const auto own = ComPointer<IOwnDataObject>::of(object);
    if (!own || own->subject().host != host) return {};
    return own->subject();
}

std::wstring guidText(const GUID& id)
{
    std::array<wchar_t, 64> text{};
    StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
    return text.data();
}

} // namespace mmc
