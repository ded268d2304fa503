#include "gallery/ProjectListPage.h"

#include "VelmoProjectItem.h"
#include "VelmoProjectsTable.h"
#include "gallery/FrozenHover.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int usual = 500;
constexpr int headerHeight = 31;
constexpr int rowHeight = 22;

VelmoProjectsTable *createTable(int width, int rows)
{
    auto *table = new VelmoProjectsTable;
    table->setFixedSize(width, headerHeight + rows * rowHeight + 8);
    return table;
}

void addProject(VelmoProjectsTable *table, const QString &name)
{
    table->addProject(u"/projects/%1.vproj"_s.arg(name), u"2024-05-17 09:41"_s);
}

void addNames(VelmoProjectsTable *table)
{
    addProject(table, ProjectListPage::tr("Central station"));
    table->addProject(u"/a/path/as/long/as/the/file/system/lets/it/be/"_s.repeated(8) + u"Deep.vproj"_s,
                      u"2024-05-17 09:41:23 Central European Summer Time"_s);
    addProject(table,
               ProjectListPage::tr("A very long name of a project that tells the whole story of an evacuation drill in "
                                   "the northern concourse on a rainy Friday afternoon"));
    addProject(table, u"<b>bold< &amp; <img src=x>"_s);
    addProject(table, u"Вокзал – полдень – σταθμός – Überführung"_s);
    addProject(table, u"two\nlines\tand a tab"_s);
    addProject(table, QString(40, u'W'));
}

} // namespace

ProjectListPage::ProjectListPage(QWidget *parent) : GalleryPage(tr("Project list"), parent)
{
    addStates();
    addCounts();
    addWidths();
}

void ProjectListPage::addStates()
{
    VelmoProjectsTable *table = createTable(usual, 4);
    for (const QString &state : {tr("Normal"), tr("Selected"), tr("Under the pointer")})
        addProject(table, state);
    table->setSelectedProject(u"/projects/%1.vproj"_s.arg(tr("Selected")));
    freezeHover(table->findChildren<VelmoProjectItem *>().at(2));

    VelmoProjectsTable *disabled = createTable(usual, 4);
    addProject(disabled, tr("Market square"));
    addProject(disabled, tr("Station hall"));
    disabled->setDefaultSelection();
    disabled->setEnabled(false);
    addSection(tr("Rows"), tr("Each row says which state it shows."))
        ->addRow({{table, tr("Enabled")}, {disabled, tr("Disabled")}});
}

void ProjectListPage::addCounts()
{
    VelmoProjectsTable *one = createTable(340, 6);
    addProject(one, tr("Market square"));
    one->setDefaultSelection();

    VelmoProjectsTable *many = createTable(340, 6);
    for (int i = 1; i <= 1000; ++i)
        addProject(many, tr("Project %1").arg(i));
    many->setSelectedProject(u"/projects/%1.vproj"_s.arg(tr("Project %1").arg(500)));
    addSection(tr("Numbers of projects"), tr("The selected one of many stands in the middle."))
        ->addRow({{createTable(340, 6), tr("None")}, {one, tr("One")}, {many, tr("1,000")}});
}

void ProjectListPage::addWidths()
{
    SampleSection *section = addSection(
        tr("Widths"), tr("Names and dates are plain text and give way at the right; the tool tip is the whole path."));
    VelmoProjectsTable *narrow = createTable(300, 8);
    VelmoProjectsTable *medium = createTable(usual, 8);
    VelmoProjectsTable *wide = createTable(1100, 8);
    for (VelmoProjectsTable *table : {narrow, medium, wide})
        addNames(table);
    section->addRow({{narrow, tr("300 pixels")}, {medium, tr("500 pixels")}});
    section->addRow({{wide, tr("1,100 pixels")}});
}
