// SPDX-License-Identifier: Apache-2.0
#include <diagkit/cli/Platform.h>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <shellapi.h>

#include <diagkit/reader/Utf8.h>

namespace NCli {

void PreparePlatform() {
    // Answers are the same bytes on every platform, line ends included.
    _setmode(_fileno(stdout), _O_BINARY);
    SetConsoleOutputCP(CP_UTF8);
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

bool IsTerminal(std::FILE* stream) { return _isatty(_fileno(stream)) != 0; }

} // namespace NCli
