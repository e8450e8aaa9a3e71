#include <QCoreApplication>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <cstdio>
#include <zlib.h>

namespace {

void print(const QByteArray &line)
{
    std::puts(line.constData());
    std::fflush(stdout);
}

// A gibibyte of zeros, packed.
QByteArray bomb()
{
    z_stream stream{};
    deflateInit2(&stream, 9, Z_DEFLATED, 15 + 16, 9, Z_DEFAULT_STRATEGY);
    QByteArray zeros(1 << 20, '\0');
    QByteArray packed;
    QByteArray out(1 << 16, '\0');
    for (int i = 0; i < 1024; ++i) {
        stream.next_in = reinterpret_cast<Bytef *>(zeros.data());
        stream.avail_in = static_cast<uInt>(zeros.size());
        do {
            stream.next_out = reinterpret_cast<Bytef *>(out.data());
            stream.avail_out = static_cast<uInt>(out.size());
            deflate(&stream, i == 1023 ? Z_FINISH : Z_NO_FLUSH);
            packed += out.left(out.size() - static_cast<int>(stream.avail_out));
        } while (stream.avail_out == 0);
    }
    deflateEnd(&stream);
    return packed;
}

/// One connection, answered in the way asked for until the other side is gone or half a gibibyte is sent.
class Answer final : public QObject
{
public:
    Answer(QTcpSocket *socket, QString way)
        : QObject(socket)
        , m_socket(socket)
        , m_way(std::move(way))
    {
        connect(socket, &QTcpSocket::readyRead, this, &Answer::begin);
        connect(socket, &QTcpSocket::disconnected, this, [this] {
            print("closed after " + QByteArray::number(m_sent));
            m_socket->deleteLater();
        });
    }

private:
    void begin()
    {
        m_request += m_socket->readAll();
        if (m_begun || !m_request.contains("\r\n\r\n"))
            return;
        m_begun = true;
        print("request " + m_request.left(m_request.indexOf("\r\n")));

        const QByteArray ok("HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\n");
        if (m_way == QLatin1String("silent"))
            return;
        if (m_way == QLatin1String("endless"))
            return keepSending(ok + "\r\n", QByteArray(65536, 'x'));
        if (m_way == QLatin1String("headers"))
            return keepSending(ok, ("X-Flood: " + QByteArray(8000, 'x') + "\r\n").repeated(8));
        if (m_way == QLatin1String("headerline"))
            return keepSending(ok + "X-Flood: ", QByteArray(65536, 'x'));
        if (m_way == QLatin1String("statusline"))
            return keepSending("HTTP/1.1 200 ", QByteArray(65536, 'x'));
        if (m_way == QLatin1String("bomb"))
            return finish(ok + "Content-Encoding: gzip\r\n\r\n" + bomb());
        if (m_way == QLatin1String("slow"))
            return trickle(ok + "\r\n");
        if (m_way == QLatin1String("cut"))
            return finish(ok + "Content-Length: 1000\r\n\r\nversion|9.9.9.9");
        if (m_way == QLatin1String("hangup"))
            return finish({});
        if (m_way == QLatin1String("garbage"))
            return finish("no http at all\r\n\r\n");
        if (m_way == QLatin1String("exact"))
            return finish(ok + "\r\nversion|1.1.6.2#" + QByteArray(65536 - 16, 'x'));
        if (m_way == QLatin1String("toolong"))
            return finish(ok + "\r\nversion|1.1.6.2#" + QByteArray(65536 - 15, 'x'));
        // Anything else is where to go next.
        finish("HTTP/1.1 302 Found\r\nLocation: " + m_way.toLatin1() + "\r\nContent-Length: 0\r\n\r\n");
    }

    void finish(const QByteArray &bytes)
    {
        m_socket->write(bytes);
        m_sent += bytes.size();
        m_socket->disconnectFromHost();
    }

    void trickle(const QByteArray &start)
    {
        m_socket->write(start);
        auto *timer = new QTimer(this);
        connect(timer, &QTimer::timeout, this, [this] {
            m_socket->write("x");
            ++m_sent;
        });
        timer->start(50);
    }

    void keepSending(const QByteArray &start, const QByteArray &piece)
    {
        m_socket->write(start);
        const auto more = [this, piece] {
            while (m_socket->bytesToWrite() < (1 << 20) && m_sent < (1 << 29)) {
                m_socket->write(piece);
                m_sent += piece.size();
            }
        };
        connect(m_socket, &QTcpSocket::bytesWritten, this, more);
        more();
    }

    QTcpSocket *m_socket;
    QString m_way;
    QByteArray m_request;
    qint64 m_sent = 0;
    bool m_begun = false;
};

} // namespace

/// misbehavingserver WAY: prints "port N", then a line for each request and for each end of a connection.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QString way = QCoreApplication::arguments().value(1);
    QTcpServer server;
    QObject::connect(&server, &QTcpServer::newConnection, &server, [&server, way] {
        new Answer(server.nextPendingConnection(), way); // the socket owns it
    });
    if (!server.listen(QHostAddress::LocalHost))
        return 1;
    print("port " + QByteArray::number(server.serverPort()));
    return QCoreApplication::exec();
}
