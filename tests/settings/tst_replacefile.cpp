#include "settings/replacefile.h"
#include "tests/support/otherprograms.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <memory>
#include <unistd.h>

namespace {

/// No file may grow beyond a size, as if the disk were full there. Writing is cut off, and the signal is ignored.
class WithSizeLimit final
{
public:
    explicit WithSizeLimit(rlim_t bytes)
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit limit{bytes, m_limit.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~WithSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY(WithSizeLimit)

private:
    rlimit m_limit{};
    void (*m_handler)(int) = SIG_DFL;
};

} // namespace

class TestReplaceFile final : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    // By a process of its own, which what must fail for want of a permission fails for.
    static QByteArray replaceBound(const QString &fileName, int size)
    {
        const QStringList command = boundByPermissions(
            {QStringLiteral(ORVANTA_SETTINGS_PROGRAM), QStringLiteral("once"), fileName, QString::number(size)});
        QProcess process;
        process.start(command.at(0), command.mid(1));
        return process.waitForFinished() ? process.readAllStandardOutput().trimmed() : QByteArray("did not end");
    }

    QString path(const char *name = "file") const { return m_folder->filePath(QString::fromLatin1(name)); }

    static QByteArray contentOf(const QString &name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not there");
    }

    void write(const QString &name, const QByteArray &content, int mode = 0666) const
    {
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            QTest::qFail("cannot write a test file", __FILE__, __LINE__);
        file.close();
        ::chmod(QFile::encodeName(name).constData(), static_cast<mode_t>(mode));
    }

    void setFolderMode(mode_t mode) const { ::chmod(QFile::encodeName(m_folder->path()).constData(), mode); }

    QStringList files() const { return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden | QDir::System); }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        setFolderMode(0777);
    }

    void aNewFileIsMade()
    {
        QCOMPARE(replaceFile(path(), "content"), ReplaceResult::Replaced);
        QCOMPARE(contentOf(path()), QByteArray("content"));
        QCOMPARE(files(), QStringList{QStringLiteral("file")});
    }

    void anOldFileIsReplacedByLongerAndShorterContent()
    {
        for (const QByteArray &content :
             {QByteArray("one"), QByteArray(100000, 'x'), QByteArray(), QByteArray("four")}) {
            QCOMPARE(replaceFile(path(), content), ReplaceResult::Replaced);
            QCOMPARE(contentOf(path()), content);
        }
        QCOMPARE(files(), QStringList{QStringLiteral("file")});
    }

    void aFileWithThatContentIsLeftAsItIs()
    {
        const auto number = [this] {
            struct stat status
            {
            };
            ::stat(QFile::encodeName(path()).constData(), &status);
            return status.st_ino;
        };
        write(path(), "content");
        const auto before = number();
        QCOMPARE(replaceFile(path(), "content"), ReplaceResult::Replaced);
        QCOMPARE(number(), before);
        QCOMPARE(replaceFile(path(), "contend"), ReplaceResult::Replaced);
        QVERIFY(number() != before);
        QCOMPARE(contentOf(path()), QByteArray("contend"));
    }

    void permissionsStay()
    {
        write(path(), "old", 0640);
        QCOMPARE(replaceFile(path(), "new"), ReplaceResult::Replaced);
        struct stat status
        {
        };
        QCOMPARE(::stat(QFile::encodeName(path()).constData(), &status), 0);
        QCOMPARE(status.st_mode & 0777, mode_t(0640));
    }

    void aLinkStaysALink()
    {
        write(path("target"), "old");
        QVERIFY(QFile::link(path("target"), path()));
        QCOMPARE(replaceFile(path(), "new"), ReplaceResult::Replaced);
        QVERIFY(QFileInfo(path()).isSymLink());
        QCOMPARE(contentOf(path("target")), QByteArray("new"));
    }

    void whatIsNoFileIsLeftAlone()
    {
        QVERIFY(QDir().mkdir(path("folder")));
        QCOMPARE(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0666), 0);
        QVERIFY(QFile::link(QStringLiteral("/dev/null"), path("null")));
        for (const char *name : {"folder", "pipe", "null"})
            QCOMPARE(replaceFile(path(name), "new"), ReplaceResult::NotOpened);
        struct stat status
        {
        };
        QCOMPARE(::stat(QFile::encodeName(path("pipe")).constData(), &status), 0);
        QVERIFY(S_ISFIFO(status.st_mode));
        QCOMPARE(::stat("/dev/null", &status), 0);
        QVERIFY(S_ISCHR(status.st_mode));
    }

    void aReadOnlyFileIsLeftAlone()
    {
        for (const char *content : {"old", "nnn"}) { // "nnn" is what it would get
            QFile::remove(path());
            write(path(), content, 0444);
            QCOMPARE(replaceBound(path(), 3), QByteArray("not opened"));
            QCOMPARE(contentOf(path()), QByteArray(content));
        }
    }

    void aFileInAReadOnlyFolderIsOverwrittenInPlace()
    {
        for (const int size : {40, 3, 0}) {
            setFolderMode(0777);
            write(path(), "old content", 0666);
            setFolderMode(0555);
            QCOMPARE(replaceBound(path(), size), QByteArray("replaced"));
            QCOMPARE(contentOf(path()), QByteArray(size, 'n'));
        }
        setFolderMode(0777);
    }

    void aMissingFileInAReadOnlyFolderIsNotMade()
    {
        setFolderMode(0555);
        QCOMPARE(replaceBound(path(), 3), QByteArray("not opened"));
        setFolderMode(0777);
        QVERIFY(files().isEmpty());
    }

    void whatCannotBeWrittenWholeLeavesTheOldFile()
    {
        write(path(), "old");
        const WithSizeLimit limit(4096);
        QCOMPARE(replaceFile(path(), QByteArray(100000, 'x')), ReplaceResult::NotWritten);
        QCOMPARE(contentOf(path()), QByteArray("old"));
        QCOMPARE(files(), QStringList{QStringLiteral("file")});
    }

    void whatCannotBeOverwrittenWholeLeavesTheOldFile()
    {
        const QByteArray old(3000, 'o');
        write(path(), old, 0666);
        setFolderMode(0555);
        {
            const WithSizeLimit limit(4096);
            QCOMPARE(replaceBound(path(), 100000), QByteArray("not written"));
            QCOMPARE(contentOf(path()), old);
        }
        setFolderMode(0777);
    }

    void aFullDiskLeavesTheOldFile()
    {
        const QByteArray mountPoint = QFile::encodeName(m_folder->path());
        if (::mount("none", mountPoint.constData(), "tmpfs", 0, "size=64k") != 0)
            QSKIP("only root can mount a small disk");
        write(path(), "old");
        {
            QFile filler(path("filler"));
            QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
            while (filler.write(QByteArray(1024, 'x')) > 0) {
            }
        }
        const ReplaceResult small = replaceFile(path(), "new");
        const QByteArray afterSmall = contentOf(path());
        const ReplaceResult large = replaceFile(path(), QByteArray(10000, 'x'));
        const QByteArray afterLarge = contentOf(path());
        const QStringList left = files();
        ::umount2(mountPoint.constData(), MNT_DETACH);
        QCOMPARE(small, ReplaceResult::NotWritten);
        QCOMPARE(afterSmall, QByteArray("old"));
        QCOMPARE(large, ReplaceResult::NotWritten);
        QCOMPARE(afterLarge, QByteArray("old"));
        QCOMPARE(left, (QStringList{QStringLiteral("file"), QStringLiteral("filler")}));
    }

    void aProcessKilledInTheMiddleLeavesOneOfTheTwoWholeFiles()
    {
        const QByteArray a(30000, 'a');
        const QByteArray b(70000, 'b');
        write(path(), a);
        int seen[2] = {0, 0};
        for (int i = 0; i < 300; ++i) {
            QProcess process;
            process.start(QStringLiteral(ORVANTA_SETTINGS_PROGRAM),
                          {QStringLiteral("replace"), path(), QString::number(a.size()), QString::number(b.size())});
            QVERIFY(process.waitForReadyRead());
            QTest::qSleep(static_cast<int>(QRandomGenerator::global()->bounded(1, 8)));
            process.kill();
            QVERIFY(process.waitForFinished());
            QCOMPARE(process.exitStatus(), QProcess::CrashExit);
            const QByteArray content = contentOf(path());
            QVERIFY2(content == a || content == b, qPrintable(QString::number(content.size())));
            ++seen[content == a ? 0 : 1];
        }
        QVERIFY2(seen[0] > 0 && seen[1] > 0, "the processes were never in the middle of anything");
    }
};

QTEST_GUILESS_MAIN(TestReplaceFile)
#include "tst_replacefile.moc"
