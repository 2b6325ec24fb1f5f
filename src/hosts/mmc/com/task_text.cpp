#include "hosts/mmc/com/task_text.h"

#include "system/windows/windows_calls.h"

#include <cstring>
#include <new>
#include <objbase.h>

namespace mmc {

wchar_t* taskText(const std::wstring& text)
{
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    void* copy = CoTaskMemAlloc(bytes);
    if (!copy) throw std::bad_alloc();
    std::memcpy(copy, text.c_str(), bytes);
    return static_cast<wchar_t*>(copy);
}

wchar_t* taskText(const std::string& text)
{
    return taskText(wideOf(text));
}

} // namespace mmc
