#include "gallery/GalleryPages.h"

#include "gallery/IconStatesPage.h"
#include "gallery/IconsPage.h"
#include "gallery/LabelsPage.h"
#include "gallery/SceneListPage.h"

using namespace Qt::StringLiterals;

QList<GalleryPages::Page> GalleryPages::all()
{
    return {
        {u"icons"_s, IconsPage::tr("Icons"), [] { return new IconsPage; }},
        {u"icon-states"_s, IconStatesPage::tr("Icon states"), [] { return new IconStatesPage; }},
        {u"labels-and-buttons"_s, LabelsPage::tr("Labels and buttons"), [] { return new LabelsPage; }},
        {u"scene-list"_s, SceneListPage::tr("Scene list"), [] { return new SceneListPage; }},
    };
}

int GalleryPages::find(const QString &name)
{
    const QList<Page> pages = all();
    for (int i = 0; i < int(pages.size()); ++i) {
        const bool isIt = pages[i].id.compare(name, Qt::CaseInsensitive) == 0
            || pages[i].title.compare(name, Qt::CaseInsensitive) == 0;
        if (isIt)
            return i;
    }
    return -1;
}
