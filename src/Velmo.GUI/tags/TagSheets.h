#pragma once

#include <QString>

class QColor;

/// The style sheets of chips and of the lists that show them.
namespace TagSheets {

/// A chip that can be dragged; @p background is written as it is.
QString dragTag(const QString &background, const QColor &text, int leftPadding);
QString addLine(const QColor &background, const QColor &text);
QString dropListScrollBar();
QString tagList(const QColor &tag, const QColor &text);
QString tagListScrollBar();

} // namespace TagSheets
