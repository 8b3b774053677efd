#include "MadePhoto.h"

#include <cstring>
#include <libheif/heif.h>
#include <memory>
#include <png.h>
#include <stdexcept>

namespace imageworker {

namespace {

using Context = std::unique_ptr<heif_context, decltype(&heif_context_free)>;
using Image = std::unique_ptr<heif_image, decltype(&heif_image_release)>;

void check(const heif_error &error)
{
    if (error.code != heif_error_Ok) {
        throw std::runtime_error(error.message);
    }
}

heif_chroma arrangementOf(const PhotoRecipe &recipe)
{
    if (recipe.chroma == PhotoRecipe::Chroma::None) {
        return heif_chroma_monochrome;
    }
    if (recipe.depth > 8) {
        return heif_chroma_interleaved_RRGGBB_LE;
    }
    return recipe.hasAlpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB;
}

Image imageOf(const Raster &raster, const PhotoRecipe &recipe)
{
    const bool isGrey = recipe.chroma == PhotoRecipe::Chroma::None;
    heif_image *made = nullptr;
    check(heif_image_create(raster.size.width, raster.size.height,
                            isGrey ? heif_colorspace_monochrome : heif_colorspace_RGB, arrangementOf(recipe),
                            &made));
    Image image(made, &heif_image_release);
    const heif_channel channel = isGrey ? heif_channel_Y : heif_channel_interleaved;
    check(heif_image_add_plane(image.get(), channel, raster.size.width, raster.size.height, recipe.depth));
    int stride = 0;
    std::uint8_t *plane = heif_image_get_plane(image.get(), channel, &stride);
    const int samples = isGrey ? 1 : recipe.hasAlpha ? 4 : 3;
    const int sampleBytes = recipe.depth > 8 ? 2 : 1;
    for (int y = 0; y < raster.size.height; ++y) {
        std::uint8_t *next = plane + std::ptrdiff_t{y} * stride;
        for (int x = 0; x < raster.size.width; ++x) {
            for (int sample = 0; sample < samples; ++sample, next += sampleBytes) {
                const int value = raster.row(y)[std::ptrdiff_t{4} * x + sample];
                const int code = value * ((1 << recipe.depth) - 1) / 255;
                for (int byte = 0; byte < sampleBytes; ++byte) {
                    next[byte] = static_cast<std::uint8_t>(code >> (8 * byte));
                }
            }
        }
    }
    if (!recipe.iccProfile.empty()) {
        check(heif_image_set_raw_color_profile(image.get(), "prof", recipe.iccProfile.data(),
                                               recipe.iccProfile.size()));
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

Bytes makePhoto(const PhotoRecipe &recipe)
{
    return makePhoto(recipe, cornerColours(recipe.size, recipe.hasAlpha));
}

Bytes makePhoto(const PhotoRecipe &recipe, const Raster &picture)
{
    const Context context(heif_context_alloc(), &heif_context_free);
    heif_encoder *found = nullptr;
    check(heif_context_get_encoder_for_format(
        context.get(), recipe.codec == PhotoRecipe::Codec::Av1 ? heif_compression_AV1 : heif_compression_HEVC,
        &found));
    const std::unique_ptr<heif_encoder, decltype(&heif_encoder_release)> encoder(found,
                                                                                 &heif_encoder_release);
    check(heif_encoder_set_lossy_quality(encoder.get(), 90));
    if (recipe.chroma != PhotoRecipe::Chroma::None) {
        check(heif_encoder_set_parameter_string(encoder.get(), "chroma",
                                                recipe.chroma == PhotoRecipe::Chroma::Full ? "444" : "420"));
    }
    const std::unique_ptr<heif_encoding_options, decltype(&heif_encoding_options_free)> options(
        heif_encoding_options_alloc(), &heif_encoding_options_free);
    options->image_orientation = static_cast<heif_orientation>(recipe.orientation);
    const Image image = imageOf(picture, recipe);
    heif_image_handle *handle = nullptr;
    check(heif_context_encode_image(context.get(), image.get(), encoder.get(), options.get(), &handle));
    if (!recipe.exif.empty()) {
        check(heif_context_add_exif_metadata(context.get(), handle, recipe.exif.data(),
                                             static_cast<int>(recipe.exif.size())));
    }
    if (!recipe.xmp.empty()) {
        check(heif_context_add_XMP_metadata(context.get(), handle, recipe.xmp.data(),
                                            static_cast<int>(recipe.xmp.size())));
    }
    heif_image_handle_release(handle);
    Bytes bytes;
    heif_writer writer = {1, [](heif_context *, const void *data, std::size_t size, void *target) {
                              const auto *first = static_cast<const std::uint8_t *>(data);
                              static_cast<Bytes *>(target)->assign(first, first + size);
                              return heif_error{heif_error_Ok, heif_suberror_Unspecified, ""};
                          }};
    check(heif_context_write(context.get(), &writer, &bytes));
    return bytes;
}

std::optional<Raster> decodeIndependently(const Bytes &photo)
{
    const Context context(heif_context_alloc(), &heif_context_free);
    heif_image_handle *handle = nullptr;
    if (heif_context_read_from_memory_without_copy(context.get(), photo.data(), photo.size(), nullptr).code !=
            heif_error_Ok ||
        heif_context_get_primary_image_handle(context.get(), &handle).code != heif_error_Ok) {
        return std::nullopt;
    }
    heif_image *decoded = nullptr;
    const heif_error error =
        heif_decode_image(handle, &decoded, heif_colorspace_RGB, heif_chroma_interleaved_RGBA, nullptr);
    heif_image_handle_release(handle);
    if (error.code != heif_error_Ok) {
        return std::nullopt;
    }
    const Image image(decoded, &heif_image_release);
    Raster raster({heif_image_get_primary_width(image.get()), heif_image_get_primary_height(image.get())});
    int stride = 0;
    const std::uint8_t *plane = heif_image_get_plane_readonly(image.get(), heif_channel_interleaved, &stride);
    for (int y = 0; y < raster.size.height; ++y) {
        std::memcpy(raster.row(y), plane + std::ptrdiff_t{y} * stride, raster.rowLength());
    }
    return raster;
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
