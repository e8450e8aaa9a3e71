#include "locale/cataloguecheck.h"

#include <QMap>

#include <optional>

namespace {

const QByteArray magic = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");

// The sections of a catalogue and the parts of a message, as the toolkit numbers them.
enum Section : quint8
{
    Contexts = 0x2f,
    Hashes = 0x42,
    Messages = 0x69,
    Dependencies = 0x96
};
enum Part : quint8
{
    End = 1,
    Translation = 3,
    Obsolete1 = 5,
    SourceText = 6,
    Context = 7,
    Comment = 8
};

// The length that stands for a translation that is not there, as in a plural without one of its forms.
constexpr quint32 missingTranslation = 0xffffffff;

// How many message parts are looked at in all. A catalogue of 4 MiB that is not made to waste time has fewer.
constexpr int maximumParts = 2'000'000;

/// Bytes that are read from the front, big-endian; every read says whether there was enough.
class Reader final
{
public:
    Reader(const QByteArray &source, quint32 start)
        : bytes(source)
        , offset(start)
    {
    }

    quint32 left() const { return static_cast<quint32>(bytes.size()) - offset; }

    std::optional<quint32> read(quint32 byteCount)
    {
        if (left() < byteCount)
            return std::nullopt;
        quint32 number = 0;
        for (quint32 i = 0; i < byteCount; ++i)
            number = number << 8 | static_cast<quint8>(bytes.at(static_cast<int>(offset + i)));
        offset += byteCount;
        return number;
    }

    std::optional<QByteArray> take(quint32 byteCount)
    {
        if (left() < byteCount)
            return std::nullopt;
        QByteArray taken = bytes.mid(static_cast<int>(offset), static_cast<int>(byteCount));
        offset += byteCount;
        return taken;
    }

    bool skip(quint32 byteCount)
    {
        if (left() < byteCount)
            return false;
        offset += byteCount;
        return true;
    }

private:
    const QByteArray &bytes;
    quint32 offset;
};

std::optional<QMap<quint32, QByteArray>> sectionsOf(const QByteArray &bytes)
{
    QMap<quint32, QByteArray> sections;
    Reader reader(bytes, static_cast<quint32>(magic.size()));
    while (reader.left() > 4) {
        const quint32 tag = *reader.read(1);
        const quint32 length = *reader.read(4);
        if (tag == 0 || length == 0)
            break; // the loader stops here too
        const auto content = reader.take(length);
        if (!content || sections.contains(tag))
            return std::nullopt;
        sections.insert(tag, *content);
    }
    return sections;
}

bool isSoundMessage(Reader reader, int &partsLeft)
{
    while (--partsLeft >= 0) {
        const auto part = reader.read(1);
        if (!part)
            return false;
        switch (*part) {
        case End:
            return true;
        case Obsolete1:
            if (!reader.skip(4))
                return false;
            break;
        case Translation: {
            const auto length = reader.read(4);
            if (length == missingTranslation)
                return true; // the loader steps back by one byte, finds no part there, and reads no further
            if (!length || *length % 2 != 0 || !reader.skip(*length))
                return false;
            break;
        }
        case SourceText:
        case Context:
        case Comment: {
            const auto length = reader.read(4);
            if (!length || !reader.skip(*length))
                return false;
            break;
        }
        default: // the old 16-bit forms are not written any more
            return false;
        }
    }
    return false;
}

bool areSoundMessages(const QByteArray &hashes, const QByteArray &messages)
{
    if (hashes.size() % 8 != 0)
        return false;
    int partsLeft = maximumParts;
    Reader reader(hashes, 0);
    while (reader.left() > 0) {
        reader.skip(4);
        const quint32 offset = *reader.read(4);
        if (offset >= static_cast<quint32>(messages.size()) || !isSoundMessage(Reader(messages, offset), partsLeft))
            return false;
    }
    return true;
}

// A hash table of 16-bit offsets, in units of two bytes, to lists of names; a name is its length and its bytes, a list
// ends with a length of 0.
bool areSoundContexts(const QByteArray &contexts)
{
    Reader table(contexts, 0);
    const auto size = table.read(2);
    if (!size || *size == 0 || table.left() < *size * 2)
        return false;
    const quint32 pool = 2 + *size * 2;
    int partsLeft = maximumParts;
    for (quint32 i = 0; i < *size; ++i) {
        const quint32 offset = pool + *table.read(2) * 2;
        if (offset == pool)
            continue; // nothing has this hash
        if (offset >= static_cast<quint32>(contexts.size()))
            return false;
        Reader list(contexts, offset);
        for (;;) {
            const auto length = list.read(1);
            if (!length || --partsLeft < 0)
                return false;
            if (*length == 0)
                break;
            if (!list.skip(*length))
                return false;
        }
    }
    return true;
}

} // namespace

bool isSoundCatalogue(const QByteArray &bytes)
{
    if (bytes.size() > maximumCatalogueSize || !bytes.startsWith(magic))
        return false;
    const auto sections = sectionsOf(bytes);
    return sections && !sections->contains(Dependencies) &&
           areSoundMessages(sections->value(Hashes), sections->value(Messages)) &&
           (!sections->contains(Contexts) || areSoundContexts(sections->value(Contexts)));
}
