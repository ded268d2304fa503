#pragma once

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

/// What the programs of this folder check by, without the toolkit: a check that fails is a line on the standard output,
/// and what is told on the standard error stream is read back from a file.
class Checks
{
public:
    /// Takes the error stream to @p errorFile.
    explicit Checks(const char *errorFile)
        : m_errorFile(errorFile), m_ready(errorFile && std::freopen(errorFile, "wb", stderr))
    { }

    void check(bool holds, const std::string &promise)
    {
        if (holds)
            return;
        std::printf("FAILED: %s\n", promise.c_str());
        ++m_failures;
    }

    std::string errorsSoFar() const
    {
        std::fflush(stderr);
        std::ifstream file(m_errorFile, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    /// What is told while @p call runs.
    template <class Call> std::string toldBy(Call call) const
    {
        const std::string before = errorsSoFar();
        call();
        return errorsSoFar().substr(before.size());
    }

    bool isReady() const
    {
        if (!m_ready)
            std::printf("A file to write is needed.\n");
        return m_ready;
    }

    /// The exit code of the program.
    int result() const
    {
        if (m_failures > 0)
            std::printf("The error stream is in %s.\n", m_errorFile);
        return m_failures > 0 ? 1 : 0;
    }

private:
    const char *m_errorFile;
    bool m_ready;
    int m_failures = 0;
};
