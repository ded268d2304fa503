#pragma once

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <chrono>
#include <functional>

/// Does something to the modal window of this class that is run next, now or within seconds. It has to end the window.
template <class Box> void onceModal(const std::function<void(Box *)> &act, int attempts = 500)
{
    using namespace std::chrono_literals;
    QTimer::singleShot(attempts == 500 ? 0ms : 10ms, qApp, [act, attempts] {
        auto *box = qobject_cast<Box *>(QApplication::activeModalWidget());
        if (!box && attempts > 0) {
            onceModal(act, attempts - 1);
            return;
        }
        QVERIFY(box);
        QVERIFY(QTest::qWaitForWindowActive(box));
        act(box);
    });
}
