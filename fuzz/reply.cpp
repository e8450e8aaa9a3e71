#include "update/versionnumber.h"
#include "update/versionquery.h"
#include "update/versionreply.h"

#include <QDate>

#include <cstdint>
#include <cstdlib>

// What an update server sends, as far as it is read: nothing but the web is ever opened. Its text serves as a stored
// date, too.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    const VersionReply reply =
        parseVersionReply(QByteArray(reinterpret_cast<const char *>(bytes), static_cast<int>(size)));
    for (const QString &text : {reply.version, reply.changes, reply.log, reply.url}) {
        if (text.contains(QLatin1Char('#')) || text.contains(QLatin1Char('\n')))
            std::abort();
        const auto address = browserAddress(text);
        if (address && address->scheme() != QLatin1String("http") && address->scheme() != QLatin1String("https"))
            std::abort();
    }
    const QDate today(2026, 11, 21);
    if (isTimeStampOf(reply.changes, today) && reply.changes != timeStampOf(today))
        std::abort();
    const auto version = parseVersion(reply.version);
    if (version && (*version > *version || *version != *version))
        std::abort();
    return 0;
}
