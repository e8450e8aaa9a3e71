#include "checksum/md5digest.h"
#include "checksum/sha1.h"
#include "checksum/sha1blocks.h"

#include <cstdlib>
#include <string>

/// Feeds a digest with chunks as a file gives them, for their cost to be counted: digestchunks md5|sha1 COUNT
int main(int argc, char **argv)
{
    if (argc != 3)
        return 2;
    constexpr std::int32_t chunkLength = 1024;
    const std::uint8_t chunk[chunkLength] = {};
    const bool isMd5 = std::string(argv[1]) == "md5";
    Md5Digest md5;
    Sha1Context sha1;
    sha1Starts(&sha1);
    for (int i = std::atoi(argv[2]); i > 0; --i) {
        if (isMd5)
            md5.update(chunk, chunkLength);
        else
            sha1Update(&sha1, chunk, chunkLength);
    }
    return 0;
}
