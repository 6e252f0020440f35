#include "platform/windows/owner_only.h"

#include <sddl.h>

#include <array>
#include <cstddef>
#include <string>

#include "platform/files.h"
#include "platform/windows/file_errors.h"

namespace cvdeveloper::files {
namespace {

class Token {
  public:
    Token() {
        if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &handle_) == FALSE) {
            raise_last_error({});
        }
    }
    Token(const Token&) = delete;
    Token& operator=(const Token&) = delete;
    ~Token() { CloseHandle(handle_); }

    [[nodiscard]] HANDLE get() const noexcept { return handle_; }

  private:
    HANDLE handle_ = nullptr;
};

// The user's identifier, "S-1-5-21-...".
std::wstring user() {
    const Token token;
    alignas(TOKEN_USER) std::array<std::byte, sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE> buffer{};
    DWORD size = 0;
    wchar_t* text = nullptr;
    if (GetTokenInformation(token.get(), TokenUser, buffer.data(),
                            static_cast<DWORD>(buffer.size()), &size) == FALSE ||
        ConvertSidToStringSidW(reinterpret_cast<TOKEN_USER*>(buffer.data())->User.Sid, &text) ==
            FALSE) {
        raise_last_error({});
    }
    std::wstring identifier = text;
    LocalFree(text);
    return identifier;
}

}  // namespace

OwnerOnly::OwnerOnly() {
    const std::wstring rights = L"D:P(A;OICI;FA;;;" + user() + L")";
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (ConvertStringSecurityDescriptorToSecurityDescriptorW(rights.c_str(), SDDL_REVISION_1,
                                                             &descriptor, nullptr) == FALSE) {
        raise_last_error({});
    }
    descriptor_.reset(descriptor);
    attributes_.nLength = sizeof(attributes_);
    attributes_.lpSecurityDescriptor = descriptor;
}

void restrict_to_owner(std::string_view path) {
    const OwnerOnly owner;
    if (SetFileSecurityW(native(path).c_str(),
                         DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION,
                         owner.descriptor()) == FALSE) {
        const DWORD error = GetLastError();
        const bool has_no_rights = error == ERROR_NOT_SUPPORTED || error == ERROR_INVALID_FUNCTION;
        if (!has_no_rights) {
            raise_file_error(error, path);
        }
    }
}

}  // namespace cvdeveloper::files
