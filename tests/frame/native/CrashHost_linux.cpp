#include "CrashHost.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>

namespace {

const char *const starterSession = "CRASH_HELPER_STARTER_SESSION";

} // namespace

std::vector<std::string> CrashHost::arguments(int argc, char **argv)
{
    return {argv + 1, argv + argc};
}

std::vector<std::string> CrashHost::readCommandLine(const std::wstring &)
{
    return {};
}

std::vector<std::string> CrashHost::oddFileNames()
{
    return {"a \"quoted\" 'name'\nof two lines", "\\", "$HOME; %PATH% & ü – 東", "-n", std::string(255, 'x')};
}

std::string CrashHost::impossiblePath()
{
    return std::string(256, 'x');
}

void CrashHost::makeInheritanceLikely()
{
    setenv(starterSession, std::to_string(getsid(0)).c_str(), 1);
    fcntl(STDERR_FILENO, F_DUPFD, 100);
    // What is opened next takes the places of standard streams.
    close(STDIN_FILENO);
    close(STDERR_FILENO);
    sigset_t all;
    sigfillset(&all);
    sigprocmask(SIG_BLOCK, &all, nullptr);
    signal(SIGPIPE, SIG_IGN);
    signal(SIGCHLD, SIG_IGN);
}

std::string CrashHost::sharedWithStarter()
{
    std::string shared;
    for (int descriptor = 3; descriptor < 1024; ++descriptor) {
        if (fcntl(descriptor, F_GETFD) >= 0)
            shared += " descriptor " + std::to_string(descriptor);
    }
    for (int stream = 0; stream < 3; ++stream) {
        char target[64] = {};
        const std::string link = "/proc/self/fd/" + std::to_string(stream);
        if (readlink(link.c_str(), target, sizeof(target) - 1) < 0 || target != std::string("/dev/null"))
            shared += " stream " + std::to_string(stream);
    }
    if (const char *session = std::getenv(starterSession); session && session == std::to_string(getsid(0)))
        shared += " session";
    sigset_t blocked;
    sigprocmask(SIG_SETMASK, nullptr, &blocked);
    if (sigismember(&blocked, SIGTERM) || signal(SIGPIPE, SIG_DFL) != SIG_DFL)
        shared += " signals";
    return shared;
}

bool CrashHost::hasChildren()
{
    return waitpid(-1, nullptr, WNOHANG) >= 0 || errno != ECHILD;
}

std::vector<std::string> CrashHost::waysToClose()
{
    return {};
}

std::thread CrashHost::closeErrorWindow(const std::string &, const std::string &, std::string &)
{
    return {};
}
