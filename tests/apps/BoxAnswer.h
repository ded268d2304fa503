#pragma once

#include "support/ModalBox.h"

#include <VelmoMessageBox.h>

/// Does something to the message box that is run next, now or within seconds. It has to end the box.
inline void answerNextBox(const std::function<void(VelmoMessageWidget *)> &answer)
{
    onceModal(answer);
}
