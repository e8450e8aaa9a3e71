#include "update/replylimit.h"

#include "update/processmemory.h"

#include <QByteArray>
#include <QNetworkReply>
#include <QTimer>

namespace {

constexpr int maximumBodySize = 64 * 1024;

// How much is taken from the connection at a time. A packed body can grow a thousandfold from one step to the next.
constexpr qint64 stepSize = 4096;

// The toolkit keeps a header of any length and tells nobody how much of it there is. What can be seen is the memory of
// the process, which grows by tens of megabytes then and otherwise by next to nothing.
constexpr qint64 maximumGrowth = 1 << 24;
constexpr int lookEveryMilliseconds = 20;

void limitHeader(QNetworkReply *reply)
{
    auto *look = new QTimer(reply);
    const qint64 before = processMemory();
    QObject::connect(look, &QTimer::timeout, reply, [reply, before] {
        if (processMemory() - before > maximumGrowth)
            reply->abort();
    });
    QObject::connect(reply, &QNetworkReply::finished, look, &QTimer::stop);
    look->start(lookEveryMilliseconds);
}

} // namespace

void takeLimitedBody(QNetworkReply *reply, const std::shared_ptr<QByteArray> &body)
{
    reply->setReadBufferSize(stepSize);
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [reply, body] {
        *body += reply->read(maximumBodySize + 1 - body->size());
        if (body->size() > maximumBodySize)
            reply->abort();
    });
    limitHeader(reply);
}
