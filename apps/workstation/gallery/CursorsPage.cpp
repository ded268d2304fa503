#include "gallery/CursorsPage.h"

#include "VelmoCursor.h"
#include "look/Palette.h"

#include <QGridLayout>
#include <QPainter>
#include <QPixmap>

namespace {

constexpr int tilesInARow = 4;
constexpr int tileGap = 12;
constexpr QSize plateSize(116, 72);
constexpr QColor lightGround(230, 230, 230);

/// A pointer on a ground of one colour, the pixel that points in red and lines that lead to it.
class CursorPlate : public QWidget
{
public:
    CursorPlate(VelmoCursor::Shape shape, const QColor &ground) : m_shape(shape), m_ground(ground)
    {
        setFixedSize(plateSize);
        setCursor(VelmoCursor::cursorFor(shape, this));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const QCursor cursor = VelmoCursor::cursorFor(m_shape, this);
        const QRect extent(QPoint(), QSize(VelmoCursor::Extent, VelmoCursor::Extent));
        const QRect place = extent.translated(rect().center() - extent.center());
        const QPoint hotSpot = place.topLeft() + cursor.hotSpot();
        QPainter painter(this);
        painter.fillRect(rect(), m_ground);
        painter.setClipRegion(QRegion(rect()) - place);
        const QColor line = m_ground == lightGround ? Palette::window : Palette::accent;
        painter.fillRect(QRect(0, hotSpot.y(), width(), 1), line);
        painter.fillRect(QRect(hotSpot.x(), 0, 1, height()), line);
        painter.setClipping(false);
        painter.drawPixmap(place.topLeft(), cursor.pixmap());
        painter.fillRect(QRect(hotSpot, QSize(1, 1)), Qt::red);
    }

private:
    VelmoCursor::Shape m_shape;
    QColor m_ground;
};

QWidget *createTile(VelmoCursor::Shape shape, const QString &name)
{
    auto *tile = new QWidget;
    tile->setObjectName(QStringLiteral("tile"));
    tile->setAttribute(Qt::WA_StyledBackground);
    auto *layout = new QVBoxLayout(tile);
    layout->setContentsMargins(12, 12, 12, 8);
    layout->setSpacing(8);
    const QPoint hotSpot = VelmoCursor::cursorFor(shape, tile).hotSpot();
    QWidget *plates = createStrip({new CursorPlate(shape, Palette::window), new CursorPlate(shape, lightGround)});
    layout->addWidget(plates, 0, Qt::AlignLeft);
    layout->addWidget(
        createCaption(CursorsPage::tr("%1   ·   %2, %3").arg(name).arg(hotSpot.x()).arg(hotSpot.y()), Qt::AlignLeft));
    return tile;
}

} // namespace

CursorsPage::CursorsPage(QWidget *parent) : GalleryPage(tr("Cursors"), parent)
{
    const QStringList names = {tr("Arrow"),
                               tr("Open hand"),
                               tr("Closed hand"),
                               tr("Move"),
                               tr("Resize horizontal"),
                               tr("Resize vertical"),
                               tr("Resize diagonal down"),
                               tr("Resize diagonal up"),
                               tr("Rotate"),
                               tr("Zoom"),
                               tr("Pick"),
                               tr("Place person"),
                               tr("Place vehicle"),
                               tr("Draw path"),
                               tr("Forbidden"),
                               tr("Wait")};
    auto *tiles = new QWidget;
    tiles->setStyleSheet(QStringLiteral("#tile { background-color:rgb(59,59,59); border-radius:4px; }"));
    auto *grid = new QGridLayout(tiles);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(tileGap);
    for (int i = 0; i < VelmoCursor::ShapeCount; ++i)
        grid->addWidget(createTile(VelmoCursor::Shape(i), names.value(i)), i / tilesInARow, i % tilesInARow);
    addSection(tr("Pointers"), tr("On dark and on light ground. The red pixel is the one that points."))
        ->addWide(tiles);
}
