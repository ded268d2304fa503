#pragma once

#include <QWidget>

class ElidedLabel;
class OvixSvgLabel;

/// The band at the bottom of a window that says what has just happened. Problems have a warning sign and the warning
/// colour.
class StatusLine : public QWidget
{
    Q_OBJECT

public:
    explicit StatusLine(QWidget *parent = nullptr);

    void showNote(const QString &text);
    void showProblem(const QString &text);
    QString text() const;
    bool showsProblem() const;

private:
    void setText(const QString &text, bool isProblem);

    OvixSvgLabel *m_sign;
    ElidedLabel *m_text;
};
