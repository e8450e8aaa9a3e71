#include "locale/catalogue.h"
#include "locale/cataloguecheck.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <sys/stat.h>

namespace {

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

QByteArray contentOf(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const QString compiled = QStringLiteral(ORVANTA_TEST_CATALOGUES "/de_DE.qm");
const QByteArray magic = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");

QByteArray number(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray section(int tag, const QByteArray &content)
{
    return char(tag) + number(static_cast<quint32>(content.size())) + content;
}

QByteArray part(int tag, const QByteArray &content)
{
    return section(tag, content);
}

// A catalogue of one message at offset 0.
QByteArray withMessage(const QByteArray &message)
{
    return magic + section(0x42, number(0x1234) + number(0)) + section(0x69, message);
}

const QByteArray sound = part(3, QByteArray("\0H\0i", 4)) + part(6, "Hello") + part(7, "Window") + char(1);

} // namespace

class TestCatalogueCheck final : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    QString write(const QByteArray &content)
    {
        QFile file(m_folder.filePath(str("catalogue.qm")));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            QTest::qFail("cannot write a test file", __FILE__, __LINE__);
        return file.fileName();
    }

private Q_SLOTS:
    void aCompiledCatalogueIsSound()
    {
        QVERIFY(isSoundCatalogue(contentOf(compiled)));
        Catalogue catalogue;
        QVERIFY(catalogue.loadFile(compiled));
        QCOMPARE(catalogue.translate("Window", "Hello"), str("Hallo"));
        QCOMPARE(catalogue.translate("Window", "Open", "a file"), str("Hallo 1"));
        QCOMPARE(catalogue.translate("Window", "%n file(s)", nullptr, 2), str("%n Dateien"));
    }

    void theToolkitsOwnCataloguesAreSound()
    {
        const QDir folder(str("/usr/share/qt5/translations"));
        const QStringList names = folder.entryList({str("qtbase_*.qm")});
        QVERIFY(names.size() > 10);
        for (const QString &name : names)
            QVERIFY2(isSoundCatalogue(contentOf(folder.filePath(name))), qPrintable(name));
    }

    void whatIsNoCatalogueIsNot_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("text") << QByteArray("not a catalogue at all, but long enough");
        QTest::newRow("half a magic number") << magic.left(8);
        QTest::newRow("a section beyond the end") << magic + "\x69" + number(100) + "short";
        QTest::newRow("a section of 4 GiB") << magic + "\x69" + number(0xffffffff) + "short";
        QTest::newRow("a section twice") << magic + section(0x69, sound) + section(0x69, sound);
        QTest::newRow("dependencies") << magic + section(0x96, number(10) + "/etc/other") + section(0x69, sound);
        QTest::newRow("an offset beyond the messages")
            << magic + section(0x42, number(1) + number(1000)) + section(0x69, sound);
        QTest::newRow("offsets without messages") << magic + section(0x42, number(1) + number(0));
        QTest::newRow("half an offset") << magic + section(0x42, number(1) + "ab") + section(0x69, sound);
        QTest::newRow("a message without an end") << withMessage(sound.chopped(1));
        QTest::newRow("a translation beyond the end") << withMessage("\x03" + number(100) + "ab");
        QTest::newRow("a translation of 4 GiB") << withMessage("\x03" + number(0xfffffffe) + "ab");
        QTest::newRow("half a character") << withMessage(part(3, "abc") + char(1));
        QTest::newRow("an odd length, read as a step back") << withMessage("\x03" + number(0x9c95cd21) + "\x01");
        QTest::newRow("a source beyond the end") << withMessage("\x06" + number(100) + "ab");
        QTest::newRow("a length beyond the end") << withMessage("\x06" + QByteArray("\0\0", 2));
        QTest::newRow("an unknown part") << withMessage("\x42");
        QTest::newRow("no context table") << magic + section(0x2f, QByteArray("\0", 1)) + section(0x69, sound);
        QTest::newRow("an empty context table") << magic + section(0x2f, QByteArray("\0\0", 2));
        QTest::newRow("a context table beyond the end") << magic + section(0x2f, QByteArray("\xff\xff", 2));
        QTest::newRow("a context beyond the end") << magic + section(0x2f, QByteArray("\0\1\xff\xff", 4));
        QTest::newRow("a context without an end") << magic + section(0x2f, QByteArray("\0\1\0\1\0\0\x09"
                                                                                      "ab",
                                                                                      9));
        QTest::newRow("more than 4 MiB") << magic + section(0x69, QByteArray(maximumCatalogueSize, 'x'));
    }

    void whatIsNoCatalogueIsNot()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(!isSoundCatalogue(bytes));
        Catalogue catalogue;
        QVERIFY(!catalogue.loadFile(write(bytes)));
        QCOMPARE(catalogue.translate("Window", "Hello"), QString());
    }

    void theSmallestCatalogueIsSound()
    {
        QVERIFY(isSoundCatalogue(withMessage(sound)));
        QVERIFY(isSoundCatalogue(withMessage(part(3, {}) + char(5) + number(7) + char(1))));
    }

    void aMissingTranslationIsSoundAndNothing()
    {
        const QByteArray catalogueBytes = withMessage("\x03" + number(0xffffffff));
        QVERIFY(isSoundCatalogue(catalogueBytes));
        Catalogue catalogue;
        if (catalogue.loadFile(write(catalogueBytes)))
            QCOMPARE(catalogue.translate("Window", "Hello"), QString());
    }

    void everyCutOfACatalogueIsSafe()
    {
        const QByteArray whole = contentOf(compiled);
        for (int length = 0; length < whole.size(); ++length) {
            Catalogue catalogue;
            if (catalogue.loadFile(write(whole.left(length))))
                catalogue.translate("Window", "Hello");
        }
    }

    void everyChangedByteOfACatalogueIsSafe()
    {
        const QByteArray whole = contentOf(compiled);
        for (int i = 0; i < whole.size(); ++i) {
            for (const int change : {0x01, 0x80, 0xff}) {
                QByteArray bytes = whole;
                bytes[i] = static_cast<char>(bytes.at(i) ^ change);
                Catalogue catalogue;
                if (!catalogue.loadFile(write(bytes)))
                    continue;
                catalogue.translate("Window", "Hello");
                catalogue.translate("Window", "Open", "a file");
                catalogue.translate("Window", "%n file(s)", nullptr, 5);
            }
        }
    }

    void aFileChangedUnderTheProgramChangesNothing()
    {
        Catalogue catalogue;
        const QString name = write(contentOf(compiled));
        QVERIFY(catalogue.loadFile(name));
        QVERIFY(QFile::resize(name, 0));
        QCOMPARE(catalogue.translate("Window", "Hello"), str("Hallo"));
    }

    void aFailedLoadEmptiesTheTranslator()
    {
        Catalogue catalogue;
        QVERIFY(catalogue.loadFile(compiled));
        QVERIFY(!catalogue.loadFile(m_folder.path()));
        QVERIFY(catalogue.isEmpty());
    }

    void aPipeIsNotWaitedFor()
    {
        const QString name = m_folder.filePath(str("pipe.qm"));
        QCOMPARE(::mkfifo(QFile::encodeName(name).constData(), 0600), 0);
        Catalogue catalogue;
        QVERIFY(!catalogue.loadFile(name));
    }

    void manyOffsetsToOneLongMessageAreDoneInTime()
    {
        // 200,000 times a message of 200,000 parts would be read for an hour.
        QByteArray message;
        for (int i = 0; i < 200000; ++i)
            message += part(6, {});
        QVERIFY(!isSoundCatalogue(magic + section(0x42, QByteArray(8, '\0').repeated(200000)) +
                                  section(0x69, message + char(1))));
    }
};

QTEST_GUILESS_MAIN(TestCatalogueCheck)
#include "tst_cataloguecheck.moc"
