#include "foundation/oVIXLabelTitle.h"

using namespace Qt::StringLiterals;

oVIXLabelTitle::oVIXLabelTitle(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setStyleSheet(u"oVIXLabelTitle {"
                  "\tbackground:rgb(59,59,59);"
                  "\tcolor:rgb(156,156,156);"
                  "\tpadding: 5px 5px 5px 5px;}"
                  "oVIXLabelTitle:disabled {"
                  "\tbackground:rgba(59,59,59,127);"
                  "\tcolor:rgb(105,105,105);}"_s);
}

oVIXLabelTitle::~oVIXLabelTitle() = default;
