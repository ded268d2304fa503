#include "monkey/LastWords.h"

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <thread>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

using namespace std::chrono_literals;

namespace {

constexpr auto longestEvent = 120s;

std::function<QStringList()> lastWords;
std::atomic_int turns = 0;

void print()
{
    static std::atomic_bool printed = false;
    if (printed.exchange(true))
        return;
    std::fputs("What has been done last:\n", stderr);
    for (const QString &word : lastWords())
        std::fprintf(stderr, "  %s\n", qPrintable(word));
    std::fflush(stderr);
}

/// A program that has crashed may do next to nothing, but has nothing to lose.
extern "C" void printAndCrash(int signal)
{
    print();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void watch()
{
    int before = 0;
    for (auto waited = 0s; waited < longestEvent; waited += 1s) {
        std::this_thread::sleep_for(1s);
        const int now = turns;
        if (now == 0 || now != before)
            waited = 0s;
        before = now;
    }
    std::fputs("Nothing happens any more.\n", stderr);
    std::abort();
}

} // namespace

void LastWords::install(const std::function<QStringList()> &words)
{
    lastWords = words;
    std::signal(SIGABRT, printAndCrash);
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_set_death_callback(print);
#else
    std::signal(SIGSEGV, printAndCrash);
    std::signal(SIGFPE, printAndCrash);
    std::signal(SIGILL, printAndCrash);
#endif
    std::thread(watch).detach();
}

void LastWords::alive()
{
    ++turns;
}
