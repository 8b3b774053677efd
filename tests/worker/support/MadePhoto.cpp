#include "MadePhoto.h"

#include <algorithm>
#include <cstring>
#include <libheif/heif_cxx.h>
#include <png.h>

namespace imageworker {

namespace {

using Chroma = PhotoRecipe::Chroma;

class BytesWriter : public heif::Context::Writer
{
public:
    heif_error write(const void *data, std::size_t size) override
    {
        const auto *first = static_cast<const std::uint8_t *>(data);
        bytes.assign(first, first + size);
        return {heif_error_Ok, heif_suberror_Unspecified, ""};
    }
    Bytes bytes;
};

heif_chroma arrangementOf(const PhotoRecipe &recipe)
{
    if (recipe.chroma == Chroma::None) {
        return heif_chroma_monochrome;
    }
    if (recipe.depth > 8) {
        return heif_chroma_interleaved_RRGGBB_LE;
    }
    return recipe.hasAlpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB;
}

heif::Image imageOf(const Raster &raster, const PhotoRecipe &recipe)
{
    const bool isGrey = recipe.chroma == Chroma::None;
    const auto [width, height] = raster.size;
    heif::Image image;
    image.create(width, height, isGrey ? heif_colorspace_monochrome : heif_colorspace_RGB,
                 arrangementOf(recipe));
    const heif_channel channel = isGrey ? heif_channel_Y : heif_channel_interleaved;
    image.add_plane(channel, width, height, recipe.depth);
    int stride = 0;
    std::uint8_t *plane = image.get_plane(channel, &stride);
    const int samples = isGrey ? 1 : recipe.hasAlpha ? 4 : 3;
    for (int y = 0; y < height; ++y) {
        std::uint8_t *next = plane + std::ptrdiff_t{y} * stride;
        for (int x = 0; x < width; ++x) {
            for (int sample = 0; sample < samples; ++sample) {
                const int value = raster.row(y)[std::ptrdiff_t{4} * x + sample];
                const int code = value * ((1 << recipe.depth) - 1) / 255;
                for (int shift = 0; shift < recipe.depth; shift += 8) {
                    *next++ = static_cast<std::uint8_t>(code >> shift);
                }
            }
        }
    }
    if (!recipe.iccProfile.empty()) {
        image.set_raw_color_profile(heif_color_profile_type_prof, recipe.iccProfile);
    }
    return image;
}

} // namespace

Raster cornerColours(PixelSize size, bool hasAlpha)
{
    Raster raster(size);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            std::uint8_t *pixel = raster.row(y) + std::ptrdiff_t{4} * x;
            pixel[0] = static_cast<std::uint8_t>(255 * x / size.width);
            pixel[1] = static_cast<std::uint8_t>(255 * y / size.height);
            pixel[2] = static_cast<std::uint8_t>(255 - (pixel[0] + pixel[1]) / 2);
            pixel[3] = static_cast<std::uint8_t>(hasAlpha ? 255 - 200 * x / size.width : 255);
        }
    }
    return raster;
}

Raster partOf(const Raster &whole, int left, int top, PixelSize size)
{
    Raster part(size);
    lay(whole, -left, -top, part);
    return part;
}

void lay(const Raster &picture, int left, int top, Raster &canvas)
{
    const int start = std::max(left, 0);
    const int end = std::min(left + picture.size.width, canvas.size.width);
    for (int y = std::max(top, 0); y < std::min(top + picture.size.height, canvas.size.height); ++y) {
        std::memcpy(canvas.row(y) + std::ptrdiff_t{4} * start,
                    picture.row(y - top) + std::ptrdiff_t{4} * (start - left),
                    std::size_t{4} * static_cast<std::size_t>(end - start));
    }
}

Bytes makePhoto(const PhotoRecipe &recipe)
{
    return makePhoto(recipe, cornerColours(recipe.size, recipe.hasAlpha));
}

Bytes makePhoto(const PhotoRecipe &recipe, const Raster &picture)
{
    constexpr int HighQuality = 90;
    heif::Encoder encoder(recipe.codec == PhotoRecipe::Codec::Av1 ? heif_compression_AV1
                                                                  : heif_compression_HEVC);
    encoder.set_lossy_quality(HighQuality);
    if (recipe.chroma != Chroma::None) {
        encoder.set_string_parameter("chroma", recipe.chroma == Chroma::Full ? "444" : "420");
    }
    if (recipe.slices > 1) {
        encoder.set_string_parameter("x265:slices", std::to_string(recipe.slices));
    }
    heif::Context::EncodingOptions options;
    options.image_orientation = static_cast<heif_orientation>(recipe.orientation);
    heif::Context context;
    const heif::ImageHandle photo = context.encode_image(imageOf(picture, recipe), encoder, options);
    if (!recipe.exif.empty()) {
        context.add_exif_metadata(photo, recipe.exif.data(), static_cast<int>(recipe.exif.size()));
    }
    if (!recipe.xmp.empty()) {
        context.add_XMP_metadata(photo, recipe.xmp.data(), static_cast<int>(recipe.xmp.size()));
    }
    BytesWriter writer;
    context.write(writer);
    return writer.bytes;
}

unsigned addGrid(HeifFile &file, PixelSize canvas, const HeifFile::Properties &properties,
                 HeifFile::Place place)
{
    constexpr int Columns = 3;
    constexpr int Rows = 2;
    const Raster whole = cornerColours({Columns * TileSize.width, Rows * TileSize.height}, false);
    std::vector<unsigned> tiles;
    for (int index = 0; index < Rows * Columns; ++index) {
        const int left = index % Columns * TileSize.width;
        const int top = index / Columns * TileSize.height;
        tiles.push_back(file.add(codedItemOf(makePhoto({}, partOf(whole, left, top, TileSize)))));
    }
    return file.addGrid(Rows, Columns, canvas, tiles, properties, place);
}

std::optional<Raster> decodeIndependently(const Bytes &photo)
{
    try {
        heif::Context context;
        context.read_from_memory_without_copy(photo.data(), photo.size());
        const heif::Image image = context.get_primary_image_handle().decode_image(
            heif_colorspace_RGB, heif_chroma_interleaved_RGBA);
        constexpr heif_channel Channel = heif_channel_interleaved;
        Raster raster({image.get_width(Channel), image.get_height(Channel)});
        int stride = 0;
        const std::uint8_t *plane = image.get_plane(Channel, &stride);
        for (int y = 0; y < raster.size.height; ++y) {
            std::memcpy(raster.row(y), plane + std::ptrdiff_t{y} * stride, raster.rowLength());
        }
        return raster;
    } catch (const heif::Error &) {
        return std::nullopt;
    }
}

std::optional<Raster> readPng(const Bytes &file)
{
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_memory(&image, file.data(), file.size()) == 0) {
        return std::nullopt;
    }
    image.format = PNG_FORMAT_RGBA;
    Raster raster({static_cast<int>(image.width), static_cast<int>(image.height)});
    if (png_image_finish_read(&image, nullptr, raster.rgba.data(), 0, nullptr) == 0) {
        return std::nullopt;
    }
    return raster;
}

} // namespace imageworker
