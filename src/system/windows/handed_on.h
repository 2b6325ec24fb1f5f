#pragma once

#include "system/windows/windows_calls.h"

#include <utility>
#include <vector>

/// Nowhere, as a handle that a new program gets.
inline OwnedHandle openNowhere(DWORD access)
{
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    return OwnedHandle(::CreateFileW(L"NUL", access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                                     OPEN_EXISTING, 0, nullptr));
}

/// The list of the handles that a new program gets, and no others.
class HandleList {
public:
    explicit HandleList(std::vector<HANDLE> handles) : handles_(std::move(handles))
    {
        SIZE_T size = 0;
        ::InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
        room_.resize(size);
        made_ = ::InitializeProcThreadAttributeList(get(), 1, 0, &size) != 0;
        usable_ = made_ && ::UpdateProcThreadAttribute(
                               get(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, handles_.data(),
                               handles_.size() * sizeof(HANDLE), nullptr, nullptr) != 0;
    }
    ~HandleList()
    {
        if (made_) ::DeleteProcThreadAttributeList(get());
    }
    HandleList(const HandleList&) = delete;
    HandleList& operator=(const HandleList&) = delete;

    bool isUsable() const { return usable_; }
    LPPROC_THREAD_ATTRIBUTE_LIST get()
    {
        return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(room_.data());
    }

private:
    std::vector<HANDLE> handles_;
    std::vector<char> room_;
    bool made_ = false;
    bool usable_ = false;
};
