#include "files/smallfile.h"

#include <cstddef>
#include <utility>
#include <windows.h>

namespace plotvue {

namespace {

[[noreturn]] void failFor(const char* file, TextSpan what)
{
    wchar_t reason[512];
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK, nullptr,
        GetLastError(), 0, reason, static_cast<DWORD>(std::size(reason)), nullptr);
    Text sentence(reason, reason + length);
    sentence.erase(sentence.find_last_not_of(u" .") + 1); // PlotVue puts it into its own sentence
    failForFile(file, what, sentence);
}

// All rights for the person who runs PlotVue; none for others, and none inherited from the folder.
class OwnerOnly {
public:
    OwnerOnly()
    {
        HANDLE token = nullptr;
        if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
            return;
        DWORD size = sizeof user_;
        valid_ = GetTokenInformation(token, TokenUser, user_, size, &size) &&
                 InitializeAcl(rights(), sizeof rights_, ACL_REVISION) &&
                 AddAccessAllowedAce(rights(), ACL_REVISION, FILE_ALL_ACCESS,
                                     reinterpret_cast<const TOKEN_USER*>(user_)->User.Sid) &&
                 InitializeSecurityDescriptor(&descriptor_, SECURITY_DESCRIPTOR_REVISION) &&
                 SetSecurityDescriptorDacl(&descriptor_, TRUE, rights(), FALSE) &&
                 SetSecurityDescriptorControl(&descriptor_, SE_DACL_PROTECTED, SE_DACL_PROTECTED);
        CloseHandle(token);
    }
    OwnerOnly(const OwnerOnly&) = delete;

    SECURITY_DESCRIPTOR* descriptor() { return valid_ ? &descriptor_ : nullptr; }

private:
    ACL* rights() { return reinterpret_cast<ACL*>(rights_); }

    alignas(TOKEN_USER) std::byte user_[sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE];
    alignas(ACL) std::byte rights_[sizeof(ACL) + sizeof(ACCESS_ALLOWED_ACE) + SECURITY_MAX_SID_SIZE];
    SECURITY_DESCRIPTOR descriptor_;
    bool valid_ = false;
};

class File {
public:
    File(const char* name, DWORD access, DWORD creation, SECURITY_ATTRIBUTES* rights = nullptr)
        : handle_(CreateFileA(name, access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, rights,
                              creation, FILE_ATTRIBUTE_NORMAL, nullptr))
    {}
    File(const File&) = delete;
    File(File&& other) noexcept : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
    ~File() { close(); }

    HANDLE handle() const { return handle_; }
    bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    bool close() { return !isOpen() || CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE)); }

    // Throws Failure for a pipe, which PlotVue would wait for, and for a device, which may never end.
    void mustBeOnDisk(const char* name, TextSpan what) const
    {
        if (GetFileType(handle_) == FILE_TYPE_DISK)
            return;
        SetLastError(ERROR_BAD_DEV_TYPE);
        failFor(name, what);
    }

private:
    HANDLE handle_;
};

bool isFolder(const char* name)
{
    const DWORD attributes = GetFileAttributesA(name);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

File created(const char* name, OwnerOnly& rights)
{
    SECURITY_ATTRIBUTES attributes{sizeof attributes, rights.descriptor(), FALSE};
    File file(name, GENERIC_WRITE | WRITE_DAC, CREATE_ALWAYS, &attributes);
    if (file.isOpen()) // a file that existed before still has its old rights
        SetKernelObjectSecurity(file.handle(),
                                DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION,
                                rights.descriptor());
    else if (GetLastError() == ERROR_ACCESS_DENIED) // perhaps of another person, but writable
        return {name, GENERIC_WRITE, CREATE_ALWAYS, &attributes};
    return file;
}

} // namespace

void writeSmallFile(const char* name, const std::string& bytes)
{
    OwnerOnly rights;
    File file = created(name, rights);
    if (!file.isOpen())
        failFor(name, u"cannot be created");
    file.mustBeOnDisk(name, u"cannot be written");
    for (std::size_t done = 0; done < bytes.size();) {
        DWORD written = 0; // fewer bytes than asked for if the disk fills up; then the next call fails
        if (!WriteFile(file.handle(), bytes.data() + done, static_cast<DWORD>(bytes.size() - done), &written,
                       nullptr) ||
            written == 0)
            failFor(name, u"cannot be written");
        done += written;
    }
    if (!file.close())
        failFor(name, u"cannot be written");
}

std::string readSmallFile(const char* name)
{
    const File file(name, GENERIC_READ, OPEN_EXISTING);
    if (!file.isOpen())
        failFor(name, isFolder(name) ? TextSpan(u"cannot be read") : u"cannot be opened");
    file.mustBeOnDisk(name, u"cannot be read");
    std::string bytes;
    char buffer[1 << 16];
    for (DWORD count = 1; count > 0;) {
        if (!ReadFile(file.handle(), buffer, sizeof buffer, &count, nullptr))
            failFor(name, u"cannot be read");
        bytes.append(buffer, count);
    }
    return bytes;
}

} // namespace plotvue
