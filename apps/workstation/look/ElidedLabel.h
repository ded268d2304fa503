#pragma once

#include <QLabel>

/// One line of plain text, shortened in the middle to the width it gets. The tool tip has the whole text.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    void setFullText(const QString &text);
    QString fullText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void showElided();

    QString m_fullText;
};
