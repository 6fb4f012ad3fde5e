// SPDX-License-Identifier: Apache-2.0
#include "reader/FaultyFiles.h"

#include <cerrno>
#include <filesystem>
#include <stdexcept>
#include <system_error>

#include <windows.h>

// The linker replaces functions by those called __wrap_... (--wrap), and names the originals __real_...; functions of
// Windows are called through pointers called __imp_....
extern "C" {
int __real_read(int file, void* buffer, unsigned count);
extern decltype(&ReadFile) __real___imp_ReadFile;

int __wrap_read(int file, void* buffer, unsigned count) {
    std::size_t const granted = NTest::GrantedBytes(count);
    if (granted == 0 && count > 0) {
        errno = EIO;
        return -1;
    }
    return __real_read(file, buffer, static_cast<unsigned>(granted));
}

static BOOL WINAPI FaultyReadFile(HANDLE file, void* buffer, DWORD count, DWORD* done, OVERLAPPED* overlapped) {
    std::size_t const granted = NTest::GrantedBytes(count);
    if (granted == 0 && count > 0) {
        SetLastError(ERROR_IO_DEVICE);
        return FALSE;
    }
    return __real___imp_ReadFile(file, buffer, static_cast<DWORD>(granted), done, overlapped);
}

decltype(&ReadFile) __wrap___imp_ReadFile = &FaultyReadFile;
}

namespace NTest {

std::string TextOfPackageFault() { return std::system_category().message(ERROR_IO_DEVICE); }

int const kErrorOfUnreadableFile = EACCES;

// A file opened without sharing cannot be read by others.
std::shared_ptr<void> MakeUnreadableFile(std::string const& path) {
    HANDLE const file =
        CreateFileW(std::filesystem::u8path(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        throw std::runtime_error("cannot make " + path);
    }
    return {file, &CloseHandle};
}

} // namespace NTest
