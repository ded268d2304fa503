// Commits the fault that it is asked for.

#include <cstring>
#include <thread>

static int *volatile kept = nullptr;
static volatile int zero = 0;
static int counter = 0;

int main(int argc, char **argv)
{
    const char *fault = argc > 1 ? argv[1] : "";
    if (std::strcmp(fault, "overflow") == 0) {
        kept = new int[4];
        const int read = kept[4 + zero];
        delete[] kept;
        return read;
    }
    if (std::strcmp(fault, "leak") == 0) {
        kept = new int[4];
        kept = nullptr;
    }
    if (std::strcmp(fault, "division") == 0)
        return 1 / zero;
    if (std::strcmp(fault, "race") == 0) {
        std::thread other([] { ++counter; });
        ++counter;
        other.join();
    }
    return 0;
}
