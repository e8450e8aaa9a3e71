#include "locale/cataloguecheck.h"

#include <QTranslator>

#include <cstdint>

// A catalogue that anybody may have dropped into the folder: checked, loaded and asked for texts.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    const QByteArray copy(reinterpret_cast<const char *>(bytes), static_cast<int>(size));
    if (!isSoundCatalogue(copy))
        return 0;
    QTranslator translator;
    if (!translator.load(reinterpret_cast<const uchar *>(copy.constData()), static_cast<int>(copy.size())))
        return 0;
    translator.translate("Window", "Hello");
    translator.translate("Window", "Open", "a file");
    translator.translate("Window", "Open");
    translator.translate("Other", "Hello");
    for (int number = 0; number < 12; ++number)
        translator.translate("Window", "%n file(s)", nullptr, number);
    return 0;
}
