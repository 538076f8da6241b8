#include "support/owneronly.h"

#include <aclapi.h>
#include <cstddef>
#include <windows.h>

namespace plotvue::test {

bool ownerOnly(const std::string& file)
{
    const DWORD attributes = GetFileAttributesA(file.c_str());
    constexpr DWORD notPlain =
        FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DEVICE;
    PSID owner = nullptr;
    ACL* rights = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & notPlain) ||
        GetNamedSecurityInfoA(file.c_str(), SE_FILE_OBJECT,
                              OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION, &owner, nullptr,
                              &rights, nullptr, &descriptor) != ERROR_SUCCESS)
        return false;
    bool only = rights != nullptr; // a file without a list of rights is open to everybody
    for (WORD i = 0; only && i < rights->AceCount; ++i) {
        void* entry = nullptr;
        GetAce(rights, i, &entry);
        PSID who = &static_cast<ACCESS_ALLOWED_ACE*>(entry)->SidStart;
        only = EqualSid(who, owner) || IsWellKnownSid(who, WinLocalSystemSid);
    }
    LocalFree(descriptor);
    return only;
}

} // namespace plotvue::test
