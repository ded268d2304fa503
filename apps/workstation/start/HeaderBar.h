#pragma once

#include <QWidget>

class ElidedLabel;

/// The band at the top of a window: the product's name, a line below it and the release.
class HeaderBar : public QWidget
{
    Q_OBJECT

public:
    explicit HeaderBar(QWidget *parent = nullptr);

    void setSubtitle(const QString &text);

private:
    ElidedLabel *m_subtitle;
};
