#include "foundation/oVIXLineEdit.h"

using namespace Qt::StringLiterals;

oVIXLineEdit::oVIXLineEdit(QWidget *parent) : QLineEdit(parent)
{
    setStyleSheet(u"oVIXLineEdit {"
                  "\tborder-radius:4px;"
                  "\tbackground:rgb(59,59,59);"
                  "\tcolor:rgb(156,156,156);"
                  "\tpadding-left:2px;}"
                  "oVIXLineEdit:disabled {"
                  "\tbackground:rgba(59,59,59,127);"
                  "\tcolor:rgb(105,105,105);}"_s);
}

oVIXLineEdit::~oVIXLineEdit() = default;
