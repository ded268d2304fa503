#include "choosers/ComboSheets.h"

using namespace Qt::StringLiterals;

QString ComboSheets::strip()
{
    return u"#textWidget {"
           "\tbackground:rgb(28,28,28);"
           "\tborder-radius:4px;}"_s;
}

QString ComboSheets::caption(const QString &alignment)
{
    return u"QClickableLabel {"
           "\tqproperty-alignment:%1;"
           "\tcolor:rgb(156,156,156);"
           "\tpadding-left:5px;"
           "\tpadding-bottom:2px;"
           "\tfont-size:11px;}"
           "QClickableLabel:disabled {"
           "\tcolor:rgb(105,105,105);}"_s.arg(alignment);
}

QString ComboSheets::choice(const QString &alignment)
{
    return u"QClickableLabel {"
           "\tqproperty-alignment:%1;"
           "\tcolor:rgb(219,219,219);"
           "\tpadding-left:2px;"
           "\tpadding-right:10px;"
           "\tpadding-bottom:2px;"
           "\tfont-size:11px;}"
           "QClickableLabel:disabled {"
           "\tcolor:rgb(105,105,105);}"_s.arg(alignment);
}

QString ComboSheets::menu()
{
    return u"QMenu {"
           "\tbackground-color:rgb(28,28,28);"
           "   border: 1px solid rgb(59,59,59);"
           "   border-radius: 2px;}"
           "QMenu::item {"
           "\theight: 16px;"
           "\tmargin: 0px 0px 0px 0px;"
           "\tpadding: 2px 10px 2px 10px;"
           "\tbackground-color: transparent;"
           "\tcolor:rgb(219,219,219);"
           "\tfont-size:11px;"
           "   border-radius: 2px;}"
           "QMenu::item:selected {"
           "\tcolor:rgb(255,255,255);"
           "\tbackground-color:rgb(59,59,59);}"_s;
}
