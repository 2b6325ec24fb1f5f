#include "system/windows/security.h"

#include "system/windows/windows_calls.h"

#include <aclapi.h>
#include <array>
#include <sddl.h>
#include <string>
#include <vector>

namespace {

/// A number that two users share as seldom as two texts have the same hash (FNV-1a).
std::uint64_t numberOf(PSID user)
{
    if (user == nullptr || ::IsValidSid(user) == 0) return 0;
    const auto* bytes = static_cast<const unsigned char*>(user);
    std::uint64_t number = 0xCBF29CE484222325U;
    for (DWORD i = 0; i < ::GetLengthSid(user); ++i) number = (number ^ bytes[i]) * 0x100000001B3U;
    return number;
}

/// What the system tells of the one as whom the program runs: a structure that begins with the
/// user. Empty where it does not.
std::vector<char> ofOurToken(TOKEN_INFORMATION_CLASS what)
{
    HANDLE opened = nullptr;
    if (::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &opened) == 0) return {};
    const OwnedHandle token(opened);
    DWORD size = 0;
    ::GetTokenInformation(token.get(), what, nullptr, 0, &size);
    std::vector<char> facts(size);
    if (::GetTokenInformation(token.get(), what, facts.data(), size, &size) == 0) return {};
    return facts;
}

PSID userIn(std::vector<char>& facts)
{
    return facts.empty() ? nullptr : *reinterpret_cast<PSID*>(facts.data());
}

} // namespace

NewSecurity::NewSecurity(OthersMay others)
{
    if (others != OthersMay::nothing) return;
    auto facts = ofOurToken(TokenUser);
    wchar_t* name = nullptr;
    if (facts.empty() || ::ConvertSidToStringSidW(userIn(facts), &name) == 0) return;
    const std::wstring rules =
        L"D:P(A;OICI;FA;;;" + std::wstring(name) + L")(A;OICI;FA;;;SY)(A;OICI;FA;;;OW)";
    ::LocalFree(name);
    ::ConvertStringSecurityDescriptorToSecurityDescriptorW(rules.c_str(), SDDL_REVISION_1,
                                                           &descriptor_, nullptr);
}

NewSecurity::~NewSecurity()
{
    if (descriptor_ != nullptr) ::LocalFree(descriptor_);
}

std::uint64_t ownerOf(HANDLE handle)
{
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (::GetSecurityInfo(handle, SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, &owner, nullptr,
                          nullptr, nullptr, &descriptor) != ERROR_SUCCESS)
        return 0;
    const std::uint64_t number = numberOf(owner);
    ::LocalFree(descriptor);
    return number;
}

bool isOurNumber(std::uint64_t owner)
{
    static const std::array<std::uint64_t, 2> ours = [] {
        auto user = ofOurToken(TokenUser);
        auto maker = ofOurToken(TokenOwner);
        return std::array{numberOf(userIn(user)), numberOf(userIn(maker))};
    }();
    return owner != 0 && (owner == ours[0] || owner == ours[1]);
}

void copyAccess(HANDLE from, HANDLE to)
{
    PACL rules = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (::GetSecurityInfo(from, SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, &rules,
                          nullptr, &descriptor) != ERROR_SUCCESS)
        return;
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    ::GetSecurityDescriptorControl(descriptor, &control, &revision);
    const SECURITY_INFORMATION handedDown = (control & SE_DACL_PROTECTED) != 0
                                                ? PROTECTED_DACL_SECURITY_INFORMATION
                                                : UNPROTECTED_DACL_SECURITY_INFORMATION;
    ::SetSecurityInfo(to, SE_FILE_OBJECT, DACL_SECURITY_INFORMATION | handedDown, nullptr, nullptr,
                      rules, nullptr);
    ::LocalFree(descriptor);
}
