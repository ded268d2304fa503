#pragma once

#include <QIcon>
#include <QIconEngine>

#include <functional>

/// An icon that is made when it is first drawn or asked about.
class LateIcon : public QIconEngine
{
public:
    static QIcon of(const std::function<QIcon()> &make);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal scale) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
    bool isNull() override;
    QIconEngine *clone() const override;

private:
    explicit LateIcon(const std::function<QIcon()> &make);

    const QIcon &icon();

    std::function<QIcon()> m_make; // empty once it has been called
    QIcon m_icon;
};
