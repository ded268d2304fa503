#pragma once

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

/// Base of every test class: a test function fails when it prints a Qt warning, leaves a top-level window behind or
/// changes the state of the application.
class TestCase : public QObject
{
    Q_OBJECT

public:
    /// Creates the application in a fixed state (font, locale, scale) and runs @p test. Takes `--scale <factor>`
    /// besides the options of Qt Test and of the platform.
    template <class Test> static int run(int argc, char **argv)
    {
        return run(argc, argv, [] { return std::unique_ptr<QObject>(new Test); });
    }

protected slots:
    void init();
    void cleanup();

private:
    static int run(int argc, char **argv, const std::function<std::unique_ptr<QObject>()> &createTest);

    QStringList m_stateBefore;
};

#define VELMO_TEST_MAIN(Test)                                                                                          \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        return TestCase::run<Test>(argc, argv);                                                                        \
    }
