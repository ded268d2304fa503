#include "look/Wording.h"

#include <QCoreApplication>
#include <QTranslator>

using namespace Qt::StringLiterals;

/// The linker drops the resources of a static library that nobody asks for.
static void useWording()
{
    Q_INIT_RESOURCE(Wording);
}

bool Wording::install()
{
    useWording();
    auto *translator = new QTranslator(QCoreApplication::instance());
    return translator->load(u":/Wording/velmo_en.qm"_s) && QCoreApplication::installTranslator(translator);
}
