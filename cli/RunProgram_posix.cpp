// SPDX-License-Identifier: Apache-2.0
#include <cli/RunProgram.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace NCli {
namespace {

/// A file descriptor, closed at the end.
class VDescriptor {
public:
    explicit VDescriptor(int descriptor = -1) : m_descriptor(descriptor) {}
    VDescriptor(VDescriptor&& other) noexcept : m_descriptor(other.m_descriptor) { other.m_descriptor = -1; }
    VDescriptor& operator=(VDescriptor&&) = delete;
    ~VDescriptor() { Close(); }

    int Get() const { return m_descriptor; }
    bool IsOpen() const { return m_descriptor >= 0; }
    void Close() {
        if (IsOpen()) {
            ::close(m_descriptor);
            m_descriptor = -1;
        }
    }

private:
    int m_descriptor;
};

/// A channel to or from the program. It is a pair of sockets: unlike with a pipe, writing to one whose other end is
/// closed does not send a signal that ends this program.
struct VChannel {
    VDescriptor own;
    VDescriptor other;
};

VChannel MakeChannel() {
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        throw std::system_error(errno, std::generic_category());
    }
    return {VDescriptor(ends[0]), VDescriptor(ends[1])};
}

/// The setup for starting the program.
class VFileActions {
public:
    VFileActions() { Require(::posix_spawn_file_actions_init(&m_actions)); }
    VFileActions(VFileActions const&) = delete;
    ~VFileActions() { ::posix_spawn_file_actions_destroy(&m_actions); }

    void Give(VChannel const& channel, int descriptor) {
        Require(::posix_spawn_file_actions_adddup2(&m_actions, channel.other.Get(), descriptor));
    }
    posix_spawn_file_actions_t const* Get() const { return &m_actions; }

private:
    static void Require(int error) {
        if (error != 0) {
            throw std::system_error(error, std::generic_category());
        }
    }

    posix_spawn_file_actions_t m_actions{};
};

/// Reads the available bytes; closes the channel at its end.
void Read(VChannel& channel, std::string& text, std::size_t most) {
    std::array<char, 65536> bytes{};
    ssize_t const count = ::read(channel.own.Get(), bytes.data(), bytes.size());
    if (count > 0) {
        text.append(bytes.data(), std::min(static_cast<std::size_t>(count), most - std::min(most, text.size())));
    } else if (count == 0 || errno != EINTR) {
        channel.own.Close();
    }
}

/// Writes as much as possible; closes the channel when all is written, or when the other end is closed.
void Write(VChannel& channel, std::string_view& rest) {
    ssize_t const count = ::send(channel.own.Get(), rest.data(), rest.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    if (count >= 0) {
        rest.remove_prefix(static_cast<std::size_t>(count));
    }
    bool const isLater = count < 0 && (errno == EAGAIN || errno == EINTR);
    if (rest.empty() || (count < 0 && !isLater)) {
        channel.own.Close();
    }
}

/// Writes to the program and reads from it, whichever is ready.
void Exchange(VChannel& input, VChannel& output, VChannel& errors, std::string_view rest, VProgramRun& run) {
    while (input.own.IsOpen() || output.own.IsOpen() || errors.own.IsOpen()) {
        std::array<pollfd, 3> waiting{{{input.own.Get(), POLLOUT, 0},
                                       {output.own.Get(), POLLIN, 0}, // < 0 is ignored
                                       {errors.own.Get(), POLLIN, 0}}};
        if (::poll(waiting.data(), waiting.size(), -1) < 0 && errno != EINTR) {
            throw std::system_error(errno, std::generic_category());
        }
        if (waiting[0].revents != 0) {
            Write(input, rest);
        }
        if (waiting[1].revents != 0) {
            Read(output, run.output, run.output.max_size());
        }
        if (waiting[2].revents != 0) {
            Read(errors, run.errors, kMostErrors);
        }
    }
}

/// The program that was started. It is always waited for, so that no zombie remains.
class VChild {
public:
    explicit VChild(pid_t id) : m_id(id) {}
    VChild(VChild const&) = delete;
    ~VChild() {
        if (m_id > 0) {
            Wait();
        }
    }

    int Wait() {
        int status = 0;
        while (::waitpid(m_id, &status, 0) < 0 && errno == EINTR) {
        }
        m_id = 0;
        return status;
    }

private:
    pid_t m_id;
};

VProgramRun Failed(int error) {
    VProgramRun run;
    run.outcome = error == ENOENT ? VProgramRun::VOutcome::NotFound : VProgramRun::VOutcome::Failed;
    run.errors = std::generic_category().message(error);
    return run;
}

} // namespace

VProgramRun RunUnguarded(std::vector<std::string> const& words, std::string_view input) {
    constexpr int kNotFoundByShells = 127; // exit status of systems that detect a missing program only in the child
    std::vector<char*> arguments;
    for (std::string const& word : words) {
        arguments.push_back(const_cast<char*>(word.c_str())); // not changed by the function
    }
    arguments.push_back(nullptr);
    VChannel toProgram = MakeChannel();
    VChannel output = MakeChannel();
    VChannel errors = MakeChannel();
    VFileActions actions;
    actions.Give(toProgram, STDIN_FILENO);
    actions.Give(output, STDOUT_FILENO);
    actions.Give(errors, STDERR_FILENO);
    pid_t id = 0;
    if (int const error = ::posix_spawnp(&id, arguments.front(), actions.Get(), nullptr, arguments.data(), environ);
        error != 0) {
        return Failed(error);
    }
    // The order matters: when memory is exhausted, the ends are closed first, so that the program ends before it is
    // waited for.
    VChild child(id);
    VChannel channels[] = {std::move(toProgram), std::move(output), std::move(errors)};
    for (VChannel& channel : channels) {
        channel.other.Close();
    }
    VProgramRun run;
    Exchange(channels[0], channels[1], channels[2], input, run);
    int const status = child.Wait();
    if (WIFEXITED(status)) {
        bool const isNotFound = WEXITSTATUS(status) == kNotFoundByShells;
        run.outcome = WEXITSTATUS(status) == 0 ? VProgramRun::VOutcome::Done
                      : isNotFound             ? VProgramRun::VOutcome::NotFound
                                               : VProgramRun::VOutcome::Failed;
    }
    return run;
}

} // namespace NCli
