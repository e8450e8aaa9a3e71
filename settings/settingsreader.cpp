#include "settings/settingsreader.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

#include <cstring>
#include <string>

namespace {

constexpr qint64 maximumSize = 1 << 20;
constexpr int maximumDepth = 64;

// The readers compare each attribute of a tag with all others. A tag reaches no further than to the next "<".
constexpr int maximumEqualSignsOfTag = 256;

// For text that the stream reader gave up on, and of which the document reader may understand more: the tags bound the
// depth then, and so few cannot exhaust a stack.
constexpr int maximumTagsOfBrokenText = 512;

QString decoded(const QByteArray &bytes)
{
    if (!bytes.startsWith("\xff\xfe") && !bytes.startsWith("\xfe\xff"))
        return QString::fromUtf8(bytes);
    std::u16string units(static_cast<std::size_t>(bytes.size()) / 2, u'\0');
    std::memcpy(units.data(), bytes.constData(), units.size() * 2);
    return QString::fromUtf16(units.data(), static_cast<int>(units.size()));
}

bool hasTooManyAttributes(const QString &text)
{
    int equalSigns = 0;
    for (const QChar character : text) {
        if (character == QLatin1Char('<'))
            equalSigns = 0;
        else if (character == QLatin1Char('=') && ++equalSigns > maximumEqualSignsOfTag)
            return true;
    }
    return false;
}

// Goes over the text without building anything, and without recursion.
bool isHarmless(const QString &text)
{
    if (hasTooManyAttributes(text))
        return false;

    QXmlStreamReader reader(text);
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (++depth > maximumDepth)
                return false;
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        case QXmlStreamReader::DTD:
            if (reader.text().contains(QLatin1Char('[')))
                return false;
            break;
        default:
            break;
        }
    }
    if (!reader.hasError())
        return true;
    return text.count(QLatin1Char('<')) <= maximumTagsOfBrokenText && !text.contains(QLatin1String("<!ENTITY"));
}

} // namespace

QByteArray settingsFileContent(const QString &fileName)
{
    if (!QFileInfo(fileName).isFile())
        return {};
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray bytes = file.read(maximumSize + 1);
    return bytes.size() > maximumSize ? QByteArray() : bytes;
}

QDomElement readSettings(const QByteArray &bytes)
{
    const QString text = decoded(bytes);
    if (bytes.size() > maximumSize || !isHarmless(text))
        return {};

    // Whether this succeeds does not matter: what was built before an error is there.
    QDomDocument document;
    document.setContent(text);
    for (QDomNode node = document.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.isElement() && node.toElement().tagName() == settingsTag)
            return node.toElement();
    }
    return {};
}
