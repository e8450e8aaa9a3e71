#include "tests/support/webserver.h"

#include <QFile>
#include <QNetworkProxy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

namespace {

QByteArray configuration(quint16 port)
{
    return "daemon off;\nmaster_process off;\npid nginx.pid;\nerror_log error.log;\n"
           "events {}\n"
           "http {\n"
           "  log_format whole '$request|$http_accept|$status';\n"
           "  access_log access.log whole;\n"
           "  client_body_temp_path client; proxy_temp_path proxy; fastcgi_temp_path fastcgi;\n"
           "  uwsgi_temp_path uwsgi; scgi_temp_path scgi;\n"
           "  gzip on; gzip_types *; gzip_min_length 1; gzip_http_version 1.0; gzip_proxied any;\n"
           "  server {\n"
           "    listen 127.0.0.1:" +
           QByteArray::number(port) +
           ";\n"
           "    root .;\n"
           "    location = /latest.php { try_files /body =404; default_type text/plain; }\n"
           "    location / { return 404; }\n"
           "  }\n"
           "}\n";
}

bool accepts(quint16 port)
{
    QTcpSocket socket;
    socket.setProxy(QNetworkProxy::NoProxy);
    socket.connectToHost(QHostAddress::LocalHost, port);
    return socket.waitForConnected(1000);
}

} // namespace

quint16 freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

WebServer::WebServer()
    : m_port(freePort())
{
    const QString file = QStringLiteral("nginx.conf");
    write(file, configuration(m_port));
    m_process.start(QStringLiteral("nginx"),
                    {QStringLiteral("-p"), m_folder.path(), QStringLiteral("-c"), m_folder.filePath(file),
                     QStringLiteral("-e"), m_folder.filePath(QStringLiteral("error.log"))});
    m_process.waitForStarted();
    for (int i = 0; i < 100 && !accepts(m_port); ++i)
        QTest::qSleep(50);
}

WebServer::~WebServer()
{
    m_process.kill();
    m_process.waitForFinished();
}

void WebServer::setBody(const QByteArray &body)
{
    write(QStringLiteral("body"), body);
}

QList<QByteArray> WebServer::requests() const
{
    QFile file(m_folder.filePath(QStringLiteral("access.log")));
    QList<QByteArray> lines =
        file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().split('\n') : QList<QByteArray>();
    lines.removeAll(QByteArray());
    return lines;
}

void WebServer::write(const QString &name, const QByteArray &content)
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        QTest::qFail("cannot write a file of the web server", __FILE__, __LINE__);
}

MisbehavingServer::MisbehavingServer(const QString &way)
{
    m_process.setReadChannel(QProcess::StandardOutput);
    m_process.start(QStringLiteral(ORVANTA_MISBEHAVING_SERVER), {way});
    m_port = static_cast<quint16>(nextLine().mid(5).toUInt());
}

MisbehavingServer::~MisbehavingServer()
{
    m_process.kill();
    m_process.waitForFinished();
}

QByteArray MisbehavingServer::nextLine()
{
    for (int i = 0; i < 300 && !m_process.canReadLine(); ++i)
        m_process.waitForReadyRead(100);
    return m_process.readLine().trimmed();
}
