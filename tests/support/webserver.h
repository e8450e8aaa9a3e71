#pragma once

#include <QByteArray>
#include <QList>
#include <QProcess>
#include <QTemporaryDir>

/// A port on this machine that nobody listens on at this moment.
quint16 freePort();

/// A real web server on this machine that answers every request for the update page with one body, packed if the client
/// can unpack, and writes down what it was asked. Without a body it answers 404. It takes requests as a proxy does,
/// too.
class WebServer final
{
public:
    WebServer();
    ~WebServer();

    quint16 port() const { return m_port; }
    void setBody(const QByteArray &body);
    /// Request line, "|", the header Accept, "|", and the status of the answer; in the order of the requests.
    QList<QByteArray> requests() const;

private:
    void write(const QString &name, const QByteArray &content);

    QTemporaryDir m_folder;
    quint16 m_port;
    QProcess m_process;
};

/// A server on this machine that does what no server should; `way` says what (misbehavingserver.cpp).
class MisbehavingServer final
{
public:
    explicit MisbehavingServer(const QString &way);
    ~MisbehavingServer();

    quint16 port() const { return m_port; }
    /// The next line that it prints, waited for at most 30 seconds: "request" and the request's first line, or "closed
    /// after" and how many bytes it could send.
    QByteArray nextLine();

private:
    QProcess m_process;
    quint16 m_port;
};
