#include "desktop/RealInput.h"
#include "support/TestCase.h"

#include "oVIXDragDropListWidget.h"
#include "oVIXDragDropTags.h"

#include <QHBoxLayout>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

class TagsDesktopTest : public TestCase
{
    Q_OBJECT

private slots:
    void init()
    {
        TestCase::init();
        m_window = std::make_unique<QWidget>();
        m_layout = new QHBoxLayout(m_window.get());
        m_editor = addEditor();
        m_other = addEditor();
        m_loose = new oVIXDragDropListWidget(m_window.get());
        m_loose->addCustomItem(u"Car"_s, BUTTON_REMOVE, true);
        m_layout->addWidget(m_loose);
        RealInput::show(m_window.get(), QRect(150, 150, 1200, 400));
        QTest::qWait(50); // the rows' own layout
    }
    void cleanup()
    {
        m_window.reset();
        TestCase::cleanup();
    }

    void equalTagsGoTogether()
    {
        m_editor->addLeftItems({u"a"_s, u"A"_s, u"a"_s}, BUTTON_NONE);
        QTest::qWait(50);
        RealInput::drag(placeOf(m_editor, u"left"_s, 0), placeOf(m_editor, u"right"_s, 1));
        QTRY_COMPARE(stateOf(m_editor), u"A bus Lorry|a a Car Tram"_s);
    }

    void otherPlacesRefuseIt()
    {
        const QString before = stateOf(m_editor);
        QSignalSpy moved(m_editor, &oVIXDragDropTags::genericTagChanged);
        QSignalSpy otherMoved(m_other, &oVIXDragDropTags::genericTagChanged);
        RealInput::drag(placeOf(m_editor, u"left"_s, 0), placeOf(m_editor, u"left"_s, 4));
        RealInput::drag(placeOf(m_editor, u"left"_s, 0), placeOf(m_other, u"left"_s, 1));
        RealInput::drag(placeOf(m_editor, u"right"_s, 0), placeOf(m_other, u"left"_s, 1));
        RealInput::drag(m_loose->viewport()->mapToGlobal(QPoint(35, 12)), placeOf(m_editor, u"left"_s, 1));
        m_editor->setDropType(VelmoDropData::Categories);
        m_editor->findChild<oVIXDragDropListWidget *>(u"rightList"_s)->setDropType(VelmoDropData::Tags);
        RealInput::drag(placeOf(m_editor, u"left"_s, 0), placeOf(m_editor, u"right"_s, 1));
        QCOMPARE(stateOf(m_editor), before);
        QCOMPARE(stateOf(m_other), before);
        QVERIFY(moved.isEmpty() && otherMoved.isEmpty());
        m_editor->setDropType(VelmoDropData::Tags); // the pointer still drags after all that
        RealInput::drag(placeOf(m_editor, u"left"_s, 0), placeOf(m_editor, u"right"_s, 1));
        QTRY_COMPARE(moved.size(), 1);
    }

private:
    oVIXDragDropTags *addEditor()
    {
        auto *editor = new oVIXDragDropTags(m_window.get());
        editor->addLeftItems({u"Lorry"_s, u"bus"_s}, BUTTON_REMOVE);
        editor->addRightItems({u"Car"_s, u"Tram"_s}, BUTTON_REMOVE);
        m_layout->addWidget(editor);
        return editor;
    }
    static QString stateOf(const oVIXDragDropTags *editor)
    {
        return editor->getLeftTags().join(u' ') + u'|' + editor->getRightTags().join(u' ');
    }
    static QPoint placeOf(const oVIXDragDropTags *editor, const QString &side, int row, int x = 35)
    {
        const auto *list = editor->findChild<oVIXDragDropListWidget *>(side + u"List"_s);
        return list->viewport()->mapToGlobal(QPoint(x, 20 * row + 12));
    }

    std::unique_ptr<QWidget> m_window;
    QHBoxLayout *m_layout = nullptr;
    oVIXDragDropTags *m_editor = nullptr;
    oVIXDragDropTags *m_other = nullptr;
    oVIXDragDropListWidget *m_loose = nullptr;
};

VELMO_TEST_MAIN(TagsDesktopTest)
#include "TagsDesktopTest.moc"
