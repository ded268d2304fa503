#pragma once

#include <QAbstractButton>

/// One line of a floating selector: the place of the check mark and a label, over a highlight while it is the current
/// line. Long labels end in an ellipsis. The selector moves the highlight; Space and Return choose.
class FloatingOption : public QAbstractButton
{
    Q_OBJECT

public:
    /// @p label is plain text, shown as typed on one line.
    FloatingOption(const QString &label, QWidget *parent);

    void setHighlighted(bool highlighted);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The pointer or the keyboard focus has come to the line.
    void reached();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void enterEvent(QEnterEvent *event) override;

private:
    QString m_label;
    bool m_highlighted = false;
};
