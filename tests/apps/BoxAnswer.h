#pragma once

#include <VelmoMessageBox.h>

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <chrono>
#include <functional>

/// Does something to the message box that is run next, now or within seconds. It has to end the box.
inline void answerNextBox(const std::function<void(VelmoMessageWidget *)> &answer, int attempts = 500)
{
    using namespace std::chrono_literals;
    QTimer::singleShot(attempts == 500 ? 0ms : 10ms, qApp, [answer, attempts] {
        auto *box = qobject_cast<VelmoMessageWidget *>(QApplication::activeModalWidget());
        if (!box && attempts > 0) {
            answerNextBox(answer, attempts - 1);
            return;
        }
        QVERIFY(box);
        QVERIFY(QTest::qWaitForWindowActive(box));
        answer(box);
    });
}
