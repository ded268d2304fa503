#include "panels/LibraryEntry.h"

#include "look/Palette.h"
#include "scenes/Scene.h"

#include <QMap>
#include <QPainter>

namespace {

void appendKinds(QList<LibraryEntry> *entries, const QList<SceneMover> &movers, bool isVehicle, const Scene &scene)
{
    QMap<QString, LibraryEntry> kinds;
    for (const SceneMover &mover : movers) {
        LibraryEntry &kind = kinds[mover.type];
        if (kind.count++ == 0)
            kind.colour = scene.colourOf(mover);
    }
    for (auto kind = kinds.begin(); kind != kinds.end(); ++kind) {
        kind->type = kind.key();
        kind->isVehicle = isVehicle;
        if (!kind->colour.isValid())
            kind->colour = isVehicle ? Palette::warning : Palette::accent;
        entries->append(*kind);
    }
}

} // namespace

QList<LibraryEntry> LibraryEntry::of(const Scene &scene)
{
    QList<LibraryEntry> entries;
    appendKinds(&entries, scene.people, false, scene);
    appendKinds(&entries, scene.vehicles, true, scene);
    return entries;
}

QPixmap LibraryEntry::picture(int side, qreal devicePixelRatio) const
{
    QPixmap pixmap(QSize(side, side) * devicePixelRatio);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / 100.0, side / 100.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Palette::deep);
    painter.drawRoundedRect(QRectF(2, 2, 96, 96), 6, 6);
    painter.setBrush(colour);
    if (isVehicle) {
        painter.drawRoundedRect(QRectF(34, 14, 32, 72), 8, 8);
        painter.setBrush(Palette::deep);
        painter.drawRoundedRect(QRectF(39, 26, 22, 12), 3, 3);
        painter.drawRoundedRect(QRectF(39, 66, 22, 10), 3, 3);
    } else {
        painter.setOpacity(0.5);
        painter.drawRoundedRect(QRectF(20, 39, 60, 24), 12, 12); // shoulders
        painter.setOpacity(1.0);
        painter.setPen(QPen(Palette::deep, 4));
        painter.drawEllipse(QRectF(36, 35, 28, 32)); // head
    }
    return pixmap;
}
