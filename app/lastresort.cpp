#include "app/lastresort.h"

#include "configuration.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace {

constexpr char title[] = "We are sorry, but an error has occurred";

void append(std::array<char, 256> &buffer, std::string_view text)
{
    const std::size_t length = std::strlen(buffer.data());
    text.copy(buffer.data() + length, buffer.size() - 1 - length);
}

} // namespace

std::array<char, 256> knownErrorText(const char *text)
{
    constexpr std::string_view help("\n\nIf you need help, please contact us at: ");
    constexpr std::string_view address(Configuration::supportAddress);

    std::array<char, 256> buffer{"Error Type: "};
    const std::size_t room = buffer.size() - 1 - std::strlen(buffer.data());
    constexpr std::size_t needed = help.size() + address.size();
    append(buffer, std::string_view(text).substr(0, room - std::min(room, needed)));
    append(buffer, help);
    append(buffer, address);
    return buffer;
}

int reportKnownError(const char *text)
{
    showErrorBox(title, knownErrorText(text).data());
    return -1;
}

int reportUnknownError()
{
    // Worded differently from the help after a known error; that is meant.
    std::array<char, 256> buffer{"Error Type: unknown\n\nPlease contact us at: "};
    append(buffer, Configuration::supportAddress);
    showErrorBox(title, buffer.data());
    return -1;
}
