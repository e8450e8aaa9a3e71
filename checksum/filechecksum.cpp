#include "checksum/filechecksum.h"

#include "checksum/contentfile.h"
#include "checksum/md5digest.h"
#include "checksum/sha1.h"

#include <QFile>

#include <cstdio>
#include <cstring>

namespace {

// Hands the file to `absorb` in pieces. The size is never asked for: files such as those under /proc report 0 and
// still have content. End of file and read error end the loop alike; that is meant.
template<typename Absorb>
void readInPieces(QFile &file, Absorb absorb)
{
    char buffer[1024];
    for (;;) {
        const qint64 length = file.read(buffer, sizeof buffer);
        if (length <= 0)
            return;
        absorb(reinterpret_cast<const std::uint8_t *>(buffer), length);
    }
}

QString md5Text(QFile &file)
{
    Md5Digest digest;
    readInPieces(file, [&digest](const std::uint8_t *bytes, qint64 length) {
        digest.update(bytes, static_cast<std::uint32_t>(length));
    });
    std::int32_t status = 0;
    return QString::fromStdString(digest.hexDigest(&status));
}

// Upper case, while MD5 is lower case: the difference is meant, and scripts rely on it.
QString sha1Text(QFile &file)
{
    Sha1Context context;
    sha1Starts(&context);
    readInPieces(file, [&context](const std::uint8_t *bytes, qint64 length) {
        sha1Update(&context, bytes, static_cast<std::int32_t>(length));
    });
    std::uint8_t digest[20];
    sha1Finish(&context, digest);

    char text[96];
    char scratch[15];
    std::snprintf(scratch, sizeof scratch, "%02X", digest[0]);
    std::strcpy(text, scratch);
    for (int i = 1; i < 20; ++i) {
        std::snprintf(scratch, sizeof scratch, "%02X", digest[i]);
        std::strcat(text, scratch);
    }
    return QString::fromLatin1(text);
}

} // namespace

QString fileChecksum(ChecksumAlgorithm algorithm, const QString &fileName)
{
    QFile file(fileName);
    if (!openContent(file) || !file.isReadable())
        throw QStringLiteral("Could not open file..");

    QString text;
    if (algorithm == md5Algorithm)
        text = md5Text(file);
    else if (algorithm == sha1Algorithm)
        text = sha1Text(file);
    file.close();
    return text;
}
