#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFont>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QFont font(u"Inter"_s);
    font.setPixelSize(11);
    QApplication::setFont(font);

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
