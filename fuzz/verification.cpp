#include "app/verification.h"

#include <cstdint>
#include <cstdlib>

// A command line: whatever is understood names one of the two digests, and no value has a "/".
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    const auto text = QString::fromUtf8(reinterpret_cast<const char *>(bytes), static_cast<int>(size));
    const auto verification = parseVerification(text);
    if (!verification)
        return 0;
    const bool isKnown = verification->algorithm == md5Algorithm || verification->algorithm == sha1Algorithm;
    if (!isKnown || verification->expected.contains(QLatin1Char(' ')) ||
        verification->file.startsWith(QLatin1Char(' ')))
        std::abort();
    if (verification->expected.contains(QLatin1Char('/')) || verification->file.contains(QLatin1Char('/')))
        std::abort();
    return 0;
}
