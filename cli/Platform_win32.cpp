// SPDX-License-Identifier: Apache-2.0
#include <cli/Platform.h>

#include <cstdlib>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <shellapi.h>

#include <diagkit/reader/Utf8.h>

#ifndef ENABLE_VIRTUAL_TERMINAL_PROCESSING
#define ENABLE_VIRTUAL_TERMINAL_PROCESSING 0x0004 // some headers are older than it
#endif

namespace NCli {
namespace {

UINT s_codePageBefore = 0;

/// The code page belongs to the console, which outlives the program.
void WriteUtf8ToConsole() {
    s_codePageBefore = GetConsoleOutputCP();
    if (s_codePageBefore != 0 && SetConsoleOutputCP(CP_UTF8) != 0) {
        std::atexit([] { SetConsoleOutputCP(s_codePageBefore); });
    }
}

} // namespace

void PreparePlatform() {
    // Output is the same bytes on every platform, including line ends.
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    WriteUtf8ToConsole();
}

std::vector<std::string> ArgumentsInUtf8(int count, char** words) {
    int wideCount = 0;
    wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &wideCount);
    if (wide == nullptr) {
        return std::vector<std::string>(words + (count > 0 ? 1 : 0), words + count);
    }
    std::vector<std::string> arguments;
    for (int index = 1; index < wideCount; ++index) {
        arguments.push_back(NReader::ToUtf8(wide[index]));
    }
    LocalFree(wide);
    return arguments;
}

bool IsTerminal(std::FILE* stream) {
    // _isatty reports the device NUL as a terminal, and consoles of old Windows versions show escape sequences as they
    // are.
    HANDLE const console = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
    DWORD mode = 0;
    return GetConsoleMode(console, &mode) != 0 &&
           SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

} // namespace NCli
