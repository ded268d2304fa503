// Checks the error window and the crash report on the system that it is built for, without the toolkit, so that the
// same program is built for Windows alone. It is also the program that is started with the report: then it writes there
// what it finds.
//
// CrashHelperProgram <file for the error stream>

#include "Checks.h"
#include "CrashHost.h"

#include "foundation/ExecutablePath.h"
#include "frame/CrashReport.h"
#include "frame/NativeErrorWindow.h"
#include "frame/WindowsCommandLine.h"

#include <chrono>
#include <filesystem>
#include <thread>
#include <utility>

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

const char *const reportFolder = "CrashHelper reports";

fs::path pathOf(const std::string &utf8)
{
    return std::u8string(utf8.begin(), utf8.end());
}

std::string utf8Of(const fs::path &path)
{
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

void writeReport(const fs::path &report)
{
    const std::string shared = CrashHost::sharedWithStarter();
    const fs::path part = report.parent_path() / "part";
    std::ofstream(part) << "shared:" << shared;
    fs::rename(part, report); // whoever waits for it finds it whole
}

std::string waitForReport(const fs::path &report)
{
    for (int step = 0; step < 500 && !fs::exists(report); ++step)
        std::this_thread::sleep_for(20ms);
    std::ifstream file(report);
    return {std::istreambuf_iterator<char>(file), {}};
}

void checkCommandLines(Checks &checks)
{
    const std::pair<std::wstring, std::wstring> cases[] = {
        {L"", L"\"\""},
        {L"a b", L"\"a b\""},
        {L"C:\\dir\\", L"\"C:\\dir\\\\\""},
        {L"a\\\\b \"c\"", L"\"a\\\\b \\\"c\\\"\""},
        {L"\\\"\\\\\"", L"\"\\\\\\\"\\\\\\\\\\\"\""},
    };
    for (const auto &[argument, quoted] : cases) {
        const std::string name(argument.begin(), argument.end());
        checks.check(quotedArgument(argument) == quoted, "<" + name + "> is quoted");
        const std::vector<std::string> read = CrashHost::readCommandLine(L"program " + quotedArgument(argument));
        checks.check(read.empty() || (read.size() == 2 && read[1] == name), "<" + name + "> is read back");
    }
}

void checkRegistering(Checks &checks, const fs::path &folder)
{
    checks.check(!CrashReport::startProcess(utf8Of(executablePath())), "nothing starts without a report");
    checks.check(CrashReport::registerFile("early"), "a relative path is taken");
    const std::string early = utf8Of(fs::current_path() / "early");
    fs::current_path(folder);
    checks.check(CrashReport::file() == early, "a relative path means the folder of that time");
    for (const std::string &path :
         {std::string(), std::string("a\0b", 3), utf8Of(folder), utf8Of(folder) + "/new/", CrashHost::impossiblePath()})
        checks.check(!CrashReport::registerFile(path) && CrashReport::file() == early, "<" + path + "> is refused");
}

void checkStarting(Checks &checks, const fs::path &folder)
{
    const std::string program = utf8Of(executablePath());
    bool shares = false;
    for (const std::string &name : CrashHost::oddFileNames()) {
        const fs::path report = folder / pathOf(name);
        checks.check(CrashReport::registerFile(utf8Of(report)), "<" + name + "> is taken");
        checks.check(CrashReport::startProcess(program), "<" + name + "> starts the program");
        checks.check(!CrashHost::hasChildren(), "nothing of it stays with the starter");
        const std::string found = waitForReport(report);
        checks.check(found == "shared:", "<" + name + "> comes through with nothing else, but: " + found);
        if (!std::exchange(shares, true))
            CrashHost::makeInheritanceLikely();
    }

    std::ofstream(folder / "text") << "no program";
    for (const std::string &other :
         {std::string(), program + '\0', utf8Of(folder / "none"), utf8Of(folder), utf8Of(folder / "text")})
        checks.check(!CrashReport::startProcess(other), "<" + other + "> is no program");
    checks.check(!CrashHost::hasChildren(), "a failed start leaves nothing");
}

void checkErrorWindow(Checks &checks)
{
    const std::string text = "It <b>failed</b>.\n\xC3\xBC\xE2\x82\xAC " + std::string(5000, 'x');
    for (const std::string &way : CrashHost::waysToClose()) {
        std::string shown;
        const std::string title = "Error closed by " + way;
        std::thread closer = CrashHost::closeErrorWindow(title, way, shown);
        const std::string told =
            checks.toldBy([&] { checks.check(NativeErrorWindow::show(title, text, "Go on"), "the window is shown"); });
        closer.join();
        checks.check(told.empty(), "the error stream is left alone");
        checks.check(shown == std::string(text).replace(text.find('\n'), 1, "\r\n") + "|Go on|", "it shows the text");
    }
    if (!CrashHost::waysToClose().empty())
        return;
    const auto tell = [&] { checks.check(NativeErrorWindow::show("Title", text), "the text is told"); };
    checks.check(checks.toldBy(tell) == "Title: " + text + "\n", "title and text go to the error stream");
}

} // namespace

int main(int argc, char **argv)
{
    const std::vector<std::string> arguments = CrashHost::arguments(argc, argv);
    if (arguments.size() == 1 && pathOf(arguments[0]).parent_path().filename() == reportFolder) {
        writeReport(pathOf(arguments[0]));
        return 0;
    }
    Checks checks(argc > 1 ? argv[1] : nullptr);
    if (!checks.isReady())
        return 2;
    const fs::path start = fs::current_path();
    const fs::path folder = start / reportFolder;
    fs::remove_all(folder);
    fs::create_directory(folder);

    checkCommandLines(checks);
    checkErrorWindow(checks);
    checkRegistering(checks, folder);
    checkStarting(checks, folder);
    fs::current_path(start);
    fs::remove_all(folder);
    return checks.result();
}
