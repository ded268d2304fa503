#pragma once

#include <VelmoMessageBox.h>

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <functional>

/// Does something to the message box that is run next, which has to end it.
inline void answerNextBox(const std::function<void(VelmoMessageWidget *)> &answer)
{
    QTimer::singleShot(0, qApp, [answer] {
        auto *box = qobject_cast<VelmoMessageWidget *>(QApplication::activeModalWidget());
        QVERIFY(box);
        QVERIFY(QTest::qWaitForWindowActive(box));
        answer(box);
    });
}
