#include "locale/catalogue.h"

#include "locale/cataloguecheck.h"

#include <QFile>
#include <QFileInfo>

bool Catalogue::loadFile(const QString &fileName)
{
    QByteArray bytes;
    QFile file(fileName);
    if (QFileInfo(fileName).isFile() && file.open(QIODevice::ReadOnly))
        bytes = file.read(maximumCatalogueSize + 1);
    if (!isSoundCatalogue(bytes))
        bytes.clear();

    // The old bytes are in use until the new ones are loaded; nothing at all unloads them.
    const auto data = reinterpret_cast<const uchar *>(bytes.constData());
    const bool isLoaded = load(data, static_cast<int>(bytes.size()));
    m_bytes = bytes;
    return isLoaded;
}
