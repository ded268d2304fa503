// What a message box costs from nothing to its first paint.

#include "ApplicationSheet.h"
#include "Limited.h"
#include "messages/VelmoMessageBox.h"

#include <benchmark/benchmark.h>

#include <QMessageBox>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QString title = u"Delete"_s;
const QString text = u"Delete the scene <b>Platform 4, morning</b> for good?"_s;

void show(QWidget &window)
{
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        qFatal("The window does not come up.");
    QCoreApplication::processEvents();
}

std::unique_ptr<QDialog> createOurs(QWidget *parent)
{
    VelmoMessageClass box(u"QUESTION"_s, title, text, false, 0, parent, nullptr);
    box.setButtonMode(QuestionButtons);
    return std::unique_ptr<QDialog>(parent->findChild<VelmoMessageWidget *>());
}

std::unique_ptr<QDialog> createPlain(QWidget *parent)
{
    return std::make_unique<QMessageBox>(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No,
                                         parent);
}

template <std::unique_ptr<QDialog> (*Create)(QWidget *)> void untilFirstPaint(benchmark::State &state)
{
    const ApplicationSheet sheet;
    QWidget parent;
    parent.resize(800, 600);
    show(parent);
    for (auto _ : state) {
        std::unique_ptr<QDialog> box = Create(&parent);
        box->setModal(true);
        show(*box);
        state.PauseTiming();
        box.reset();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}

} // namespace

BENCHMARK(limited<untilFirstPaint<createOurs>, 200>)->Name("message_box/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(untilFirstPaint<createPlain>)->Name("message_box/plain")->Unit(benchmark::kMillisecond);
