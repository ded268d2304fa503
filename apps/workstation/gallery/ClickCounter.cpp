#include "gallery/ClickCounter.h"

#include "look/Sheets.h"

using namespace Qt::StringLiterals;

ClickCounter::ClickCounter(QWidget *parent) : QLabel(parent)
{
    setStyleSheet(Sheets::secondaryText());
}

qsizetype ClickCounter::addLine(const QString &name)
{
    m_lines.append({name});
    showCounts();
    return m_lines.size() - 1;
}

void ClickCounter::increase(qsizetype line)
{
    ++m_lines[line].count;
    showCounts();
}

void ClickCounter::showCounts()
{
    QStringList texts;
    for (const Line &line : std::as_const(m_lines))
        texts << tr("%1 %2").arg(line.name).arg(line.count);
    setText(texts.join(u'\n'));
}
