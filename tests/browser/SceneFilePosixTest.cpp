// Scene files that only a POSIX system has, and reading errors, which only there can be called for.

#include "support/Files.h"
#include "support/TestCase.h"

#include "VelmoSceneMetadataParser.h"

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <cerrno>
#include <limits>

#include <dlfcn.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto unlimited = std::numeric_limits<size_t>::max();

// How many bytes this thread can still read before reading fails.
thread_local size_t readableBytes = unlimited;

} // namespace

// Stands in front of the system's function for the whole program.
extern "C" __attribute__((visibility("default"))) ssize_t read(int file, void *buffer, size_t size)
{
    static const auto systemRead = reinterpret_cast<ssize_t (*)(int, void *, size_t)>(dlsym(RTLD_NEXT, "read"));
    if (readableBytes == unlimited)
        return systemRead(file, buffer, size);
    if (readableBytes == 0) {
        errno = EIO;
        return -1;
    }
    const ssize_t got = systemRead(file, buffer, qMin(size, readableBytes));
    readableBytes -= size_t(qMax(got, ssize_t(0)));
    return got;
}

class SceneFilePosixTest : public TestCase
{
    Q_OBJECT

private slots:
    void readsALargeFileInLittleMemory();

    void warnsOfWhatIsNoReadableFile()
    {
        QCOMPARE(mkfifo(qPrintable(path(u"pipe"_s)), 0600), 0);
        QVERIFY(QFile::link(m_folder.path(), path(u"folder"_s)));
        QVERIFY(QFile::link(path(u"gone"_s), path(u"link"_s)));
        write(u"locked"_s);
        QVERIFY(QFile::setPermissions(path(u"locked"_s), {}));
        QStringList files{path(u"pipe"_s), u"/dev/zero"_s, path(u"folder"_s)};
        if (geteuid() != 0)
            files << path(u"locked"_s);
        for (const QString &file : files)
            QCOMPARE(warningOf(file), u"Not valid xml file.\n"_s + file + u"file can't be read."_s);
        QCOMPARE(warningOf(path(u"link"_s)), QString()); // as of a file that is not there
    }

    // A file that breaks off is a malformed one; only an error behind a whole scene is told.
    void tellsAReadingErrorBehindTheScene()
    {
        write(u"%1.vscene"_s);
        const QString file = path(u"%1.vscene"_s);
        QCOMPARE(warningOf(file, 0), QString());
        QCOMPARE(warningOf(file, 60), QString());
        QCOMPARE(m_parser.actorCount, u"7"_s);
        QCOMPARE(warningOf(file, documentSize), u"Error.\nCannot read file "_s + file + u": "_s + qt_error_string(EIO));
    }

private:
    static constexpr char document[] = "<VelmoSerializer>\n<scenemetadata actorcount='7'/>\n<a/></VelmoSerializer>";
    static constexpr qint64 documentSize = sizeof document - 1;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    void write(const QString &name) const { Files::write(path(name), document); }

    // Parses a file that cannot be read to its end; gives title and text of the warning, empty without one.
    QString warningOf(const QString &path, size_t readable = unlimited)
    {
        QString warning;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&warning] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                warning = box->windowTitle() + u'\n' + box->text();
                box->accept();
            }
        });
        timer.start(1);

        m_parser = VelmoSceneMetadataParser::withDefaults();
        readableBytes = readable;
        const auto result = m_parser.read(path);
        readableBytes = unlimited;
        VelmoSceneMetadataParser::report(result);
        return result.ok ? u"no failure"_s : warning;
    }

    QTemporaryDir m_folder;
    VelmoSceneMetadataParser m_parser;
};

// The first test of all, since the peak of memory never sinks.
void SceneFilePosixTest::readsALargeFileInLittleMemory()
{
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    const auto peakKibibytes = [] {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss;
    };
    const QByteArray actors = QByteArray("<actor name='Visitor'><goal x='1.5' y='2'/></actor>\n").repeated(20'000);
    QFile file(path(u"large.vscene"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<VelmoSerializer>\n");
    for (int i = 0; i < 32; ++i)
        file.write(actors);
    file.write("<scenemetadata actorcount='7'/></VelmoSerializer>");
    file.close();

    const auto before = peakKibibytes();
    QVERIFY(m_parser.read(file.fileName()).ok);
    QCOMPARE(m_parser.actorCount, u"7"_s);
    QVERIFY(peakKibibytes() - before < 1024);
#endif
}

VELMO_TEST_MAIN(SceneFilePosixTest)
#include "SceneFilePosixTest.moc"
