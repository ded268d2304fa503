#include "gallery/ChoosersPage.h"

#include "QMultiCompleterLineEdit.h"
#include "gallery/ClickCounter.h"
#include "gallery/ComboSamples.h"
#include "gallery/FrozenHover.h"
#include "oVIXButton.h"
#include "oVIXLabelTitle.h"
#include "oVIXLineEdit.h"

#include <QCompleter>

using namespace Qt::StringLiterals;

namespace {

constexpr int editWidth = 240;

QMultiCompleterLineEdit *createEdit(const QString &hint)
{
    auto *edit = new QMultiCompleterLineEdit;
    edit->setPlaceholderText(hint);
    edit->setFixedSize(editWidth, 24);
    edit->setStyleSheet(u"QLineEdit { border:0px; border-radius:4px; background:rgb(59,59,59); color:rgb(219,219,219);"
                        "padding-left:6px; padding-right:6px; }"_s);
    const QStringList words = {ChoosersPage::tr("adults"),   ChoosersPage::tr("bicycle"), ChoosersPage::tr("bus"),
                               ChoosersPage::tr("children"), ChoosersPage::tr("crowd"),   ChoosersPage::tr("cyclists"),
                               ChoosersPage::tr("minibus"),  ChoosersPage::tr("tram")};
    auto *completer = new QCompleter(words, edit);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    edit->setCompleter(completer);
    return edit;
}

oVIXButton *createButton(const QString &text)
{
    auto *button = new oVIXButton(text);
    button->setFixedHeight(28);
    return button;
}

oVIXLineEdit *createLineEdit(const QString &text, bool enabled)
{
    auto *edit = new oVIXLineEdit;
    edit->setPlaceholderText(ChoosersPage::tr("New name"));
    edit->setText(text);
    edit->setFixedSize(160, 24);
    edit->setEnabled(enabled);
    return edit;
}

oVIXLabelTitle *createTitle(const QString &text, bool enabled)
{
    auto *title = new oVIXLabelTitle;
    title->setText(text);
    title->setFixedWidth(160);
    title->setEnabled(enabled);
    return title;
}

} // namespace

ChoosersPage::ChoosersPage(QWidget *parent) : GalleryPage(tr("Choosers"), parent)
{
    addCombos();
    addEdits();
    addButtons();
    addPlain();
}

void ChoosersPage::addCombos()
{
    SampleSection *states =
        addSection(tr("Combos"),
                   tr("A click opens the menu. The second motion is disabled and left out. The last combo of the first "
                      "row takes the keyboard: Space opens it."));
    states->addRow(ComboSamples::states());
    states->addRow(ComboSamples::texts());
    addSection(tr("Combo alignments and menu"), tr("The menu opens over the choice; here it is kept open below it."))
        ->addRow(ComboSamples::alignments() + QList<Sample>{{ComboSamples::createOpen(), tr("open")}});
}

void ChoosersPage::addEdits()
{
    QMultiCompleterLineEdit *eachWord = createEdit(tr("adults, chi"));
    eachWord->setCompleteEachWord(true);
    QMultiCompleterLineEdit *anywhere = createEdit(tr("adults, bus"));
    anywhere->setCompleteEachWord(true);
    anywhere->setMatchAnywhere(true);
    addSection(tr("Edits that complete"), tr("Type \"b\", \"c\" or a whole word; arrows, Return, Tab and Escape work."))
        ->addRow({
            {createEdit(tr("bicycle")), tr("the whole text")},
            {eachWord, tr("each word")},
            {anywhere, tr("each word, matched anywhere")},
        });
}

void ChoosersPage::addButtons()
{
    oVIXButton *hovered = createButton(tr("Bake"));
    freezeHover(hovered);
    oVIXButton *icon = createButton(tr("Add people"));
    icon->setIcon(u":/Windows/AddButton"_s);
    oVIXButton *disabled = createButton(tr("Add people"));
    disabled->setIcon(u":/Windows/AddButton"_s);
    disabled->setEnabled(false);
    oVIXButton *checkable = createButton(tr("Loop"));
    oVIXButton *checked = createButton(tr("Loop"));
    for (oVIXButton *button : {checkable, checked})
        button->setCheckable(true);
    checked->setChecked(true);
    oVIXButton *elided = createButton(tr("Replace everything"));
    elided->setFixedWidth(84);
    auto *counted = createButton(tr("Click me"));
    auto *counter = new ClickCounter;
    counter->count(counted, &oVIXButton::clicked, tr("clicked"));
    counter->count(counted, &oVIXButton::doubleClicked, tr("double"));
    counter->count(counted, &oVIXButton::rightClicked, tr("right"));

    addSection(tr("Text buttons"), tr("They answer the release."))
        ->addRow({
            {createStrip({counted, counter}), tr("normal")},
            {hovered, tr("hover")},
            {icon, tr("with an icon")},
            {disabled, tr("disabled")},
            {checkable, tr("checkable")},
            {checked, tr("checked")},
            {elided, tr("too narrow")},
        });
}

void ChoosersPage::addPlain()
{
    addSection(tr("Line edit and title"))
        ->addRow({
            {createLineEdit(QString(), true), tr("line edit, empty")},
            {createLineEdit(tr("Station square"), true), tr("line edit")},
            {createLineEdit(tr("Station square"), false), tr("line edit, disabled")},
            {createTitle(tr("Available tags"), true), tr("title")},
            {createTitle(tr("Available tags"), false), tr("title, disabled")},
        });
}
