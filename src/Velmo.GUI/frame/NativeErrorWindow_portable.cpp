#include "frame/ErrorStream.h"
#include "frame/NativeErrorWindow.h"

bool NativeErrorWindow::show(const std::string &title, const std::string &text, const std::string &)
{
    return writeToErrorStream(title, text);
}
