// SPDX-License-Identifier: Apache-2.0
#include <cli/RunProgram.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <exception>
#include <system_error>
#include <thread>

#include <windows.h>

#include <diagkit/reader/Utf8.h>

namespace NCli {
namespace {

[[noreturn]] void Fail() { throw std::system_error(static_cast<int>(GetLastError()), std::system_category()); }

/// A handle, closed at the end.
class VHandle {
public:
    VHandle() = default;
    explicit VHandle(HANDLE handle) : m_handle(handle) {}
    VHandle(VHandle&& other) noexcept : m_handle(other.m_handle) { other.m_handle = nullptr; }
    VHandle& operator=(VHandle&&) = delete;
    ~VHandle() { Close(); }

    HANDLE Get() const { return m_handle; }
    void Close() {
        if (m_handle != nullptr) {
            CloseHandle(m_handle);
            m_handle = nullptr;
        }
    }

private:
    HANDLE m_handle = nullptr;
};

struct VChannel {
    VHandle reading;
    VHandle writing;
};

/// A pipe whose end for the program is inherited by it, and the other end is not.
VChannel MakeChannel(bool isRead) {
    SECURITY_ATTRIBUTES attributes{sizeof attributes, nullptr, TRUE};
    HANDLE reading = nullptr;
    HANDLE writing = nullptr;
    if (CreatePipe(&reading, &writing, &attributes, 0) == 0) {
        Fail();
    }
    VChannel channel{VHandle(reading), VHandle(writing)};
    if (SetHandleInformation(isRead ? writing : reading, HANDLE_FLAG_INHERIT, 0) == 0) {
        Fail();
    }
    return channel;
}

/// The program in a folder of PATH, and nowhere else: neither in the current folder nor next to this program. "" for
/// none.
std::wstring FindProgram(std::wstring const& name) {
    DWORD const length = GetEnvironmentVariableW(L"PATH", nullptr, 0);
    std::wstring folders(length, L'\0');
    folders.resize(GetEnvironmentVariableW(L"PATH", folders.data(), length));
    std::wstring found(32768, L'\0'); // the longest possible path
    DWORD const foundLength =
        SearchPathW(folders.c_str(), name.c_str(), L".exe", static_cast<DWORD>(found.size()), found.data(), nullptr);
    found.resize(foundLength < found.size() ? foundLength : 0);
    return found;
}

/// A word in the form that the program parses again: in quotes, with backslashes doubled where a quote follows.
std::wstring QuotedWord(std::string const& word) {
    std::wstring quoted = L"\"";
    std::size_t backslashes = 0;
    for (wchar_t const character : NReader::FromUtf8(word)) {
        if (character == L'"') {
            quoted.append(backslashes + 1, L'\\');
        }
        backslashes = character == L'\\' ? backslashes + 1 : 0;
        quoted += character;
    }
    return quoted.append(backslashes, L'\\') += L'"';
}

void ReadAll(HANDLE from, std::string& text, std::size_t most) {
    std::array<char, 65536> bytes{};
    DWORD count = 0;
    while (ReadFile(from, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr) != 0 && count > 0) {
        text.append(bytes.data(), std::min<std::size_t>(count, most - std::min(most, text.size())));
    }
}

void WriteAll(HANDLE into, std::string_view text) {
    DWORD count = 0;
    while (!text.empty()) {
        DWORD const next = static_cast<DWORD>(std::min<std::size_t>(text.size(), 65536));
        if (WriteFile(into, text.data(), next, &count, nullptr) == 0) {
            return; // the other end is closed
        }
        text.remove_prefix(count);
    }
}

/// Runs a part of the exchange in parallel; an exception in it is rethrown at its end.
class VBeside {
public:
    template <class Work>
    explicit VBeside(Work work)
        : m_thread([this, work]() mutable {
              try {
                  work();
              } catch (...) {
                  m_thrown = std::current_exception();
              }
          }) {}
    ~VBeside() {
        if (m_thread.joinable()) {
            m_thread.join();
        }
    }

    void Finish() {
        m_thread.join();
        if (m_thrown != nullptr) {
            std::rethrow_exception(m_thrown);
        }
    }

private:
    std::exception_ptr m_thrown;
    std::thread m_thread; // last: it uses the other
};

} // namespace

VProgramRun RunUnguarded(std::vector<std::string> const& words, std::string_view input) {
    VProgramRun run;
    std::wstring const program = FindProgram(NReader::FromUtf8(words.front()));
    if (program.empty()) {
        run.outcome = VProgramRun::VOutcome::NotFound;
        return run;
    }
    std::wstring call;
    for (std::string const& word : words) {
        call += (call.empty() ? L"" : L" ") + QuotedWord(word);
    }
    VChannel toProgram = MakeChannel(true);
    VChannel output = MakeChannel(false);
    VChannel errors = MakeChannel(false);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = toProgram.reading.Get();
    start.hStdOutput = output.writing.Get();
    start.hStdError = errors.writing.Get();
    PROCESS_INFORMATION started{};
    if (CreateProcessW(program.c_str(), call.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr, nullptr, &start,
                       &started) == 0) {
        Fail();
    }
    VHandle const process(started.hProcess);
    VHandle const thread(started.hThread);
    toProgram.reading.Close();
    output.writing.Close();
    errors.writing.Close();
    VBeside feeding([&] {
        WriteAll(toProgram.writing.Get(), input);
        toProgram.writing.Close();
    });
    VBeside complaints([&] { ReadAll(errors.reading.Get(), run.errors, kMostErrors); });
    VBeside answer([&] { ReadAll(output.reading.Get(), run.output, run.output.max_size()); });
    answer.Finish();
    complaints.Finish();
    feeding.Finish();
    DWORD status = 1;
    WaitForSingleObject(process.Get(), INFINITE);
    GetExitCodeProcess(process.Get(), &status);
    run.outcome = status == 0 ? VProgramRun::VOutcome::Done : VProgramRun::VOutcome::Failed;
    return run;
}

} // namespace NCli
