#include "values/SliderSheets.h"

using namespace Qt::StringLiterals;

// clang-format off

QString SliderSheets::editor(const QString &className, const QString &side)
{
    return u"%1 {"
            "\tbackground-color: rgb(28,28,28);"
            "\tcolor: rgb(219,219,219);"
            "\tborder-top-%2-radius: %2px;"
            "\tborder-bottom-%2-radius: %3px;"
            " \tfont-size: 11px;}"
            "%1:disabled {"
            "\tbackground-color: rgba(28,28,28,128);"
            "\tcolor: rgb(105,105,105);}"_s.arg(className).arg(side).arg(4);
}

QString SliderSheets::lateralFrame()
{
    return u"QFrame {"
            "\tbackground-color: rgb(28,28,28);"
            "\tborder-radius: 4px;"
            "  font-size: 11px;}"
            "QFrame:disabled {"
            "\tbackground-color: rgba(28,28,28,128);"
            "\tcolor: rgb(105,105,105);}"_s;
}

QString SliderSheets::lateralText(const QString &className)
{
    return u"%1 {"
            "\tbackground: transparent;"
            "\tcolor: rgb(219,219,219);}"
            "%1:disabled {"
            "\tcolor: rgb(105,105,105);}"_s.arg(className);
}

QString SliderSheets::lateralText(const QString &className, const QString &colour)
{
    return u"%1 {"
            "\tbackground: rgb(28,28,28);"
            "\tcolor: %2;}"
            "%1:disabled {"
            "\tbackground-color: rgb(28,28,28);"
            "\tcolor: rgb(156,156,156);}"_s.arg(className, colour);
}

// clang-format on
