#include "settings/settingsreader.h"

#include <QDomDocument>

#include <cstdint>
#include <cstdlib>

namespace {

int depth(const QDomNode &node)
{
    int deepest = 0;
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling())
        deepest = qMax(deepest, depth(child));
    return 1 + deepest;
}

} // namespace

// Reading a settings file: whatever the bytes, the result is nothing or an element Settings of bounded depth.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    const QDomElement settings =
        readSettings(QByteArray(reinterpret_cast<const char *>(bytes), static_cast<int>(size)));
    if (!settings.isNull() && (settings.tagName() != settingsTag || depth(settings) > 512))
        std::abort();
    return 0;
}
