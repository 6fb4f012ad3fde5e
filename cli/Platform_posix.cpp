// SPDX-License-Identifier: Apache-2.0
#include <cli/Platform.h>

#include <cstddef>
#include <cstdio>

#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cli/Output.h>
#include <cli/Status.h>

namespace NCli {
namespace {

constexpr std::size_t kStack = 1U << 20U;    // several times the deepest walks and searches
constexpr std::size_t kMessages = 1U << 20U; // several times the longest help

bool IsAvailable(std::size_t size) {
    void* const room = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return room != MAP_FAILED && ::munmap(room, size) == 0;
}

bool MayStackGrow() {
    rlimit limit{};
    return ::getrlimit(RLIMIT_STACK, &limit) == 0 && (limit.rlim_cur == RLIM_INFINITY || limit.rlim_cur >= 2 * kStack);
}

/// If the stack has to grow when memory is exhausted, a signal ends the program. So it grows at the start.
[[gnu::noinline]] void GrowStack() {
    [[maybe_unused]] char volatile room[kStack];
    room[0] = '\0'; // the far end
}

/// Runs before the objects of the program are constructed, some of which allocate memory. If memory is insufficient
/// here, the program ends like any call whose memory is exhausted later; text streams, which write the help, would take
/// it for the end of a text.
[[gnu::constructor(101)]] void TakeRoom() {
    if (!IsAvailable(kStack + kMessages)) {
        std::fputs(kOutOfMemory, stderr);
        ::_exit(static_cast<int>(VStatus::Unreadable));
    }
    if (MayStackGrow()) {
        GrowStack();
    }
}

} // namespace

void PreparePlatform() {}

std::vector<std::string> ArgumentsInUtf8(int count, char** words) {
    return count > 1 ? std::vector<std::string>(words + 1, words + count) : std::vector<std::string>();
}

bool IsTerminal(std::FILE* stream) { return ::isatty(::fileno(stream)) != 0; }

} // namespace NCli
