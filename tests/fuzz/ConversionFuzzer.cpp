// Feeds the whole way from a file to a PNG, a JPEG and a thumbnail.

#include "PhotoConverter.h"
#include "PhotoReader.h"
#include "Thumbnail.h"
#include "TileDecoder.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    return imageworker::loadDecoders() ? 0 : 1;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace imageworker;
    constexpr std::int64_t LargestWorthFuzzing = 1'000'000; // pixels; time is better spent on more files
    const auto source = sourceOfBytes({data, size});
    const auto photo = readPhoto(*source);
    if (!photo) {
        return 0;
    }
    const PixelSize shown = photo->transformation().size();
    if (std::int64_t{shown.width} * shown.height > LargestWorthFuzzing) {
        return 0;
    }
    static const int output = ::memfd_create("copy", MFD_CLOEXEC);
    static_cast<void>(writeThumbnail(*source, *photo, output, 240));
    for (const OutputFormat format : {OutputFormat::png, OutputFormat::jpeg}) {
        static_cast<void>(writeCopy(*source, *photo, output, format, 0.9));
        static_cast<void>(::ftruncate(output, 0));
        ::lseek(output, 0, SEEK_SET);
    }
    return 0;
}
