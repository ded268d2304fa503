#include "gallery/IconsPage.h"

#include "OvixSvgCacheCounters.h"
#include "OvixSvgLabel.h"

#include <QDir>
#include <QGridLayout>
#include <QLocale>
#include <QPainter>
#include <QTimer>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int tilesInARow = 5;
constexpr int tileWidth = 210;
constexpr int iconGap = 12;

QWidget *createIcon(const QString &path, int size)
{
    auto *icon = new OvixSvgLabel;
    icon->setFilename(path);
    icon->setFixedSize(size, size);
    return icon;
}

QWidget *createTile(const QString &path)
{
    auto *tile = new QWidget;
    tile->setObjectName(u"tile"_s);
    tile->setAttribute(Qt::WA_StyledBackground);
    tile->setFixedWidth(tileWidth);
    auto *layout = new QVBoxLayout(tile);
    layout->setContentsMargins(12, 8, 12, 8);
    layout->setSpacing(4);
    QList<QWidget *> icons;
    for (const int size : {16, 24, 32, 64})
        icons << createIcon(path, size);
    QWidget *strip = createStrip(icons, iconGap);
    layout->addWidget(strip, 0, Qt::AlignLeft);
    layout->addWidget(createCaption(QDir(path).dirName(), Qt::AlignLeft));
    return tile;
}

/// Painted rather than a label: the numbers are those of the moment at which they are seen.
class CacheCounters : public QWidget
{
public:
    CacheCounters()
    {
        setFixedHeight(16);
        m_timer.callOnTimeout(this, [this] {
            if (text() != m_painted)
                update();
        });
    }

protected:
    void showEvent(QShowEvent *event) override
    {
        m_timer.start(1s);
        QWidget::showEvent(event);
    }

    void hideEvent(QHideEvent *event) override
    {
        m_timer.stop();
        QWidget::hideEvent(event);
    }

    void paintEvent(QPaintEvent *) override
    {
        m_painted = text();
        QPainter painter(this);
        painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, m_painted);
    }

private:
    static QString text()
    {
        return IconsPage::tr("%1 pictures   ·   %2   ·   %3 files   ·   %4 files parsed")
            .arg(OvixSvgCacheCounters::pixmaps())
            .arg(QLocale().formattedDataSize(OvixSvgCacheCounters::bytes()))
            .arg(OvixSvgCacheCounters::documents())
            .arg(OvixSvgCacheCounters::loads());
    }

    QTimer m_timer;
    QString m_painted;
};

} // namespace

IconsPage::IconsPage(QWidget *parent) : GalleryPage(tr("Icons"), parent)
{
    for (const QString &folder : {u":/Windows"_s, u":/Design"_s, u":/ProjectWindow"_s, u":/Timebar"_s})
        addFolder(folder);
    SampleSection *cache = addSection(tr("Cache"), tr("What the icon service holds at this moment."));
    cache->addWide(new CacheCounters);
}

void IconsPage::addFolder(const QString &folder)
{
    QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name);
    names.removeIf([](const QString &name) { return name.contains(u'@'); }); // the same once more, for dense screens
    auto *tiles = new QWidget;
    // Not every icon is a light one.
    tiles->setStyleSheet(u"#tile { background-color:rgb(59,59,59); border-radius:4px; }"_s);
    auto *grid = new QGridLayout(tiles);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(12);
    for (int i = 0; i < int(names.size()); ++i)
        grid->addWidget(createTile(folder + u'/' + names[i]), i / tilesInARow, i % tilesInARow);
    grid->setColumnStretch(tilesInARow, 1);

    const QString count = names.size() == 1 ? tr("1 icon, at 16, 24, 32 and 64 pixels")
                                            : tr("%1 icons, at 16, 24, 32 and 64 pixels").arg(names.size());
    addSection(folder, count)->addWide(tiles);
}
