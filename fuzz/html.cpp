#include "update/foreigntext.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QTextDocument>

#include <cstdint>
#include <cstdlib>

namespace {

/// A document that may load nothing.
class Closed final : public QTextDocument
{
protected:
    QVariant loadResource(int, const QUrl &) override { std::abort(); }
};

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argumentCount, char ***arguments)
{
    qputenv("QT_QPA_PLATFORM", "minimal");
    new QGuiApplication(*argumentCount, *arguments); // lives as long as the process
    return 0;
}

// A stranger's HTML, filtered and laid out as a box does it: nothing is loaded, and it stays a page that can be drawn.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    const auto text = QString::fromUtf8(reinterpret_cast<const char *>(bytes), static_cast<int>(size));
    Closed document;
    document.setHtml(harmlessHtml(shortened(text, 4000)));
    document.setTextWidth(400);
    if (document.documentLayout()->documentSize().height() > 20000)
        std::abort();
    return 0;
}
