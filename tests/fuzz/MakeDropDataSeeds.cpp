// Writes the payloads that fuzzing starts from: MakeDropDataSeeds <folder>

#include "VelmoDropData.h"

#include <QDir>
#include <QFile>
#include <QMimeData>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

bool write(const QDir &folder, const QString &name, const VelmoDropData &payload)
{
    const std::unique_ptr<QMimeData> mime(payload.getMimeData());
    const QByteArray bytes = mime->data(u"application/x-velmodropdata"_s);
    QFile file(folder.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2)
        return 2;
    const QDir folder(QFile::decodeName(argv[1]));
    const QList<VelmoDropData::Item> several{
        {u"red"_s, {}}, {{}, QByteArray("\0\1\0", 3)}, {u"\u0412\U0001f333"_s, "abc"}};
    const bool written = QDir().mkpath(folder.path())
        && write(folder, u"nothing"_s, {QList<VelmoDropData::Item>(), VelmoDropData::Tags})
        && write(folder, u"one-tag"_s, {{{u"tree"_s, {}}}, VelmoDropData::Tags})
        && write(folder, u"several"_s, {several, VelmoDropData::Categories})
        && write(folder, u"other-type"_s, {several, VelmoDropData::Type(0x01020304)});
    return written ? 0 : 1;
}
