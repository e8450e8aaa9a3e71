#include "ui/windowlayout.h"

#include <QDataStream>
#include <QIODevice>

namespace {

// The toolkit's marks of a layout, of the docks in it and of the tool bars in it.
constexpr qint32 layoutMark = 0xff;
constexpr quint8 docksMark = 0xfd;
constexpr quint8 toolBarsMark = 0xfc;

// No window is larger, and nothing in it lies further from its corner.
constexpr qint32 farthest = 0xffff;

/// A layout that is read from the front, number by number.
class Reader final
{
public:
    explicit Reader(const QByteArray &bytes)
        : stream(bytes)
    {
        stream.setVersion(QDataStream::Qt_5_0);
    }

    template<typename Number>
    bool isNext(Number expected)
    {
        return isNextBetween<Number>(expected, expected);
    }

    template<typename Number>
    bool isNextBetween(Number smallest, Number largest)
    {
        Number number = 0;
        stream >> number;
        return stream.status() == QDataStream::Ok && number >= smallest && number <= largest;
    }

    bool isNextText(const QString &expected)
    {
        // Byte by byte: the stream would trust a length of gigabytes.
        bool isSame = isNext<qint32>(static_cast<qint32>(expected.size()) * 2);
        for (const QChar character : expected)
            isSame = isSame && isNext<quint16>(character.unicode());
        return isSame;
    }

    bool isNextCoordinate() { return isNextBetween<qint32>(-farthest, farthest); }

    bool isNextShown()
    {
        quint8 bits = 0;
        stream >> bits;
        return bits == 1 || bits == 3; // upright or not
    }

    // Of a tool bar beside the window, two 16-bit numbers in each of two words, behind the bit that says so. It is
    // shown at once, in that size.
    bool isNextPlaceOnScreen()
    {
        quint32 width = 0;
        quint32 height = 0;
        stream >> width >> height;
        const bool isFloating = width & 1;
        return stream.status() == QDataStream::Ok && (!isFloating || (width >> 17 <= 1000 && height >> 16 <= 1000));
    }

    bool isAtEnd() const { return stream.atEnd(); }

private:
    QDataStream stream;
};

bool areNextDocksNone(Reader &reader)
{
    if (!reader.isNext<quint8>(docksMark) || !reader.isNext<qint32>(0))
        return false;
    for (int i = 0; i < 2; ++i) { // width and height of what the window is about
        if (!reader.isNextBetween<qint32>(0, farthest))
            return false;
    }
    for (int i = 0; i < 4; ++i) { // to which side each corner belongs
        if (!reader.isNextBetween<qint32>(Qt::LeftDockWidgetArea, Qt::BottomDockWidgetArea))
            return false;
    }
    return true;
}

bool isNextOneToolBar(Reader &reader, const QString &name)
{
    return reader.isNext<quint8>(toolBarsMark) && reader.isNext<qint32>(1) && // one line of tool bars
           reader.isNextBetween<qint32>(0, 3) &&                              // on one of the four sides
           reader.isNext<qint32>(1) && reader.isNextText(name) &&             // with one tool bar
           reader.isNextShown() &&                                   // without it there is no way to the options
           reader.isNextCoordinate() && reader.isNextCoordinate() && // its place and length in the line
           reader.isNextPlaceOnScreen();
}

} // namespace

bool isSoundLayout(const QByteArray &state, const QString &toolBar)
{
    Reader reader(state);
    return reader.isNext<qint32>(layoutMark) && reader.isNext<qint32>(0) && areNextDocksNone(reader) &&
           isNextOneToolBar(reader, toolBar) && reader.isAtEnd();
}
