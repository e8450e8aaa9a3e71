#include "locale/catalogue.h"

#include "locale/cataloguecheck.h"

#include <QFile>
#include <QFileInfo>

bool Catalogue::loadFile(const QString &fileName)
{
    QByteArray content;
    QFile file(fileName);
    if (QFileInfo(fileName).isFile() && file.open(QIODevice::ReadOnly))
        content = file.read(maximumCatalogueSize + 1);
    if (!isSoundCatalogue(content))
        content.clear();

    // The old bytes are in use until the new ones are loaded; nothing at all unloads them.
    const auto data = reinterpret_cast<const uchar *>(content.constData());
    const bool isLoaded = load(data, static_cast<int>(content.size()));
    bytes = content;
    return isLoaded;
}
