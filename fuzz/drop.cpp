#include <QMimeData>
#include <QUrl>

#include <cstdint>
#include <cstdlib>

// What another program lets go of over the window: a list of addresses, of which the first counts.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    QMimeData data;
    data.setData(QStringLiteral("text/uri-list"),
                 QByteArray(reinterpret_cast<const char *>(bytes), static_cast<int>(size)));
    const QList<QUrl> urls = data.urls();
    if (!urls.isEmpty() && !urls.first().isLocalFile() && !urls.first().toLocalFile().isEmpty())
        std::abort();
    return 0;
}
