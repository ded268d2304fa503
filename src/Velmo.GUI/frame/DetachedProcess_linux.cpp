#include "frame/DetachedProcess.h"

#include <fcntl.h>
#include <linux/close_range.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

// Everything here may run in a signal handler, and behind _Fork in a process of many threads: system calls only. fork
// would take the locks of the allocator, which may be what has crashed.

namespace {

constexpr int firstOwnDescriptor = 3; // behind the standard streams

void closeDescriptorsOnExec()
{
    if (close_range(firstOwnDescriptor, ~0U, CLOSE_RANGE_CLOEXEC) == 0)
        return;
    const long count = sysconf(_SC_OPEN_MAX);
    for (int descriptor = firstOwnDescriptor; descriptor < count; ++descriptor)
        fcntl(descriptor, F_SETFD, FD_CLOEXEC);
}

void detachStandardStreams()
{
    const int nothing = open("/dev/null", O_RDWR);
    for (int stream = 0; stream < firstOwnDescriptor; ++stream)
        dup2(nothing, stream);
}

/// A handler's process has signals blocked, and that is handed on.
void restoreSignals()
{
    for (int number = 1; number < NSIG; ++number)
        signal(number, SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
}

/// Becomes the program; comes back only when that fails.
void become(const char *program, const char *argument)
{
    restoreSignals();
    detachStandardStreams();
    closeDescriptorsOnExec();
    char *const arguments[] = {const_cast<char *>(program), const_cast<char *>(argument), nullptr};
    execv(program, arguments);
}

/// The process in between: its end leaves the program to the system, which collects it one day.
[[noreturn]] void runInBetween(const char *program, const char *argument, int failurePipe)
{
    // The pipe may have taken the place of a standard stream that was closed.
    const int failure = fcntl(failurePipe, F_DUPFD_CLOEXEC, firstOwnDescriptor);
    if (failure < 0)
        _exit(write(failurePipe, "", 1) == 1 ? 1 : 2);
    close(failurePipe);
    setsid();
    const pid_t process = _Fork();
    if (process == 0)
        become(program, argument);
    if (process <= 0 && write(failure, "", 1) != 1)
        _exit(2);
    _exit(process > 0 ? 0 : 1);
}

/// Whether the pipe ends without a word: the start of the program has closed it.
bool endsEmpty(int pipe)
{
    char word = 0;
    ssize_t count = 0;
    do
        count = read(pipe, &word, 1);
    while (count < 0 && errno == EINTR);
    return count == 0;
}

} // namespace

bool startDetached(const std::string &program, const std::string &argument)
{
    int failurePipe[2];
    if (pipe2(failurePipe, O_CLOEXEC) != 0)
        return false;
    const pid_t process = _Fork();
    if (process == 0)
        runInBetween(program.c_str(), argument.c_str(), failurePipe[1]);
    close(failurePipe[1]);
    const bool started = process > 0 && endsEmpty(failurePipe[0]);
    close(failurePipe[0]);
    while (process > 0 && waitpid(process, nullptr, 0) < 0 && errno == EINTR) { }
    return started;
}
