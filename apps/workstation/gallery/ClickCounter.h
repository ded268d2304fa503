#pragma once

#include <QLabel>
#include <QList>

/// Words that count how often the signals of a widget have come.
class ClickCounter : public QLabel
{
    Q_OBJECT

public:
    explicit ClickCounter(QWidget *parent = nullptr);

    template <class Sender, class Signal> void count(Sender *sender, Signal signal, const QString &name)
    {
        const qsizetype line = addLine(name);
        connect(sender, signal, this, [this, line] { increase(line); });
    }

private:
    struct Line
    {
        QString name;
        int count = 0;
    };

    qsizetype addLine(const QString &name);
    void increase(qsizetype line);
    void showCounts();

    QList<Line> m_lines;
};
