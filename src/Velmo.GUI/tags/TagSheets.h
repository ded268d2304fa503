#pragma once

#include <QString>

class QColor;

/// The style sheets of chips, of the lists that show them and of the two-pane editor.
namespace TagSheets {

/// A chip that can be dragged; @p background is written as it is.
QString dragTag(const QString &background, const QColor &text, int leftPadding);
QString addLine(const QColor &background, const QColor &text);
QString dropListScrollBar();
QString tagList(const QColor &tag, const QColor &text);
QString tagListScrollBar();
/// For the lists of the two-pane editor. The brace stays open, so the sheet sets nothing and just takes the place of
/// the one in the form; the toolkit warns of it once for each list.
QString paneList();
QString paneTitle();
QString paneSeparator(QLatin1StringView colour);

} // namespace TagSheets
