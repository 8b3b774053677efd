#include "JpegOrPngFile.h"

#include "HeifFile.h"
#include "MagicBytes.h"

#include <cstdio>
#include <cstdlib>
#include <jpeglib.h>
#include <zlib.h>

namespace imageworker {

namespace {

void writeMarker(jpeg_compress_struct &jpeg, std::string_view prefix, const Bytes &content)
{
    if (!content.empty()) {
        const Bytes segment = joined({bytesOf(prefix), content});
        jpeg_write_marker(&jpeg, JPEG_APP0 + 1, segment.data(), static_cast<unsigned>(segment.size()));
    }
}

Bytes compressed(const Bytes &bytes)
{
    uLong length = compressBound(bytes.size());
    Bytes stream(length);
    compress(stream.data(), &length, bytes.data(), bytes.size());
    stream.resize(length);
    return stream;
}

} // namespace

Bytes makeJpeg(const Raster &picture, const FileMetadata &metadata, const JpegForm &form)
{
    jpeg_compress_struct jpeg = {};
    jpeg_error_mgr errors = {};
    jpeg.err = jpeg_std_error(&errors); // ends the process, which for a test will do
    jpeg_create_compress(&jpeg);
    unsigned char *stream = nullptr;
    unsigned long length = 0;
    jpeg_mem_dest(&jpeg, &stream, &length);
    jpeg.image_width = static_cast<JDIMENSION>(picture.size.width);
    jpeg.image_height = static_cast<JDIMENSION>(picture.size.height);
    jpeg.input_components = 4;
    jpeg.in_color_space = JCS_EXT_RGBX;
    jpeg_set_defaults(&jpeg);
    jpeg_set_quality(&jpeg, form.quality, TRUE);
    jpeg.comp_info[0].h_samp_factor = form.sampling;
    jpeg.comp_info[0].v_samp_factor = form.sampling;
    if (form.isProgressive) {
        jpeg_simple_progression(&jpeg);
    }
    jpeg_start_compress(&jpeg, TRUE);
    writeMarker(jpeg, JpegExifStart, metadata.exif);
    writeMarker(jpeg, JpegXmpStart, metadata.xmp);
    if (!metadata.iccProfile.empty()) {
        jpeg_write_icc_profile(&jpeg, metadata.iccProfile.data(),
                               static_cast<unsigned>(metadata.iccProfile.size()));
    }
    for (int y = 0; y < picture.size.height; ++y) {
        auto *row = const_cast<JSAMPROW>(picture.row(y));
        jpeg_write_scanlines(&jpeg, &row, 1);
    }
    jpeg_finish_compress(&jpeg);
    jpeg_destroy_compress(&jpeg);
    Bytes file(stream, stream + length);
    std::free(stream);
    return file;
}

Bytes makePng(const Raster &picture, const FileMetadata &metadata, const PngForm &form)
{
    Bytes file;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_write_fn(
        png, &file,
        [](png_structp writer, png_bytep bytes, std::size_t length) {
            auto *target = static_cast<Bytes *>(png_get_io_ptr(writer));
            target->insert(target->end(), bytes, bytes + length);
        },
        nullptr);
    png_set_IHDR(png, info, static_cast<png_uint_32>(picture.size.width),
                 static_cast<png_uint_32>(picture.size.height), form.depth,
                 form.hasOpacity ? PNG_COLOR_TYPE_RGBA : PNG_COLOR_TYPE_RGB,
                 form.isInterlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_BASE,
                 PNG_FILTER_TYPE_BASE);
    png_set_compression_buffer_size(png, static_cast<std::size_t>(form.chunkLength));
    png_set_filter(png, 0, form.filters);
    png_write_info(png, info);
    if (!form.hasOpacity) {
        png_set_filler(png, 0, PNG_FILLER_AFTER);
    }
    const int passes = png_set_interlace_handling(png);
    for (int pass = 0; pass < passes; ++pass) {
        for (int y = 0; y < picture.size.height; ++y) {
            Bytes row;
            for (std::size_t index = 0; index < picture.rowLength(); ++index) {
                row.insert(row.end(), static_cast<std::size_t>(form.depth / 8), picture.row(y)[index]);
            }
            png_write_row(png, row.data());
        }
    }
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    Bytes chunks;
    const auto add = [&chunks](std::string_view type, const Bytes &content) {
        const Bytes named = joined({bytesOf(type), content});
        const auto checksum = crc32(0, named.data(), static_cast<unsigned>(named.size()));
        chunks = joined({chunks, bigEndian(content.size(), 4), named, bigEndian(checksum, 4)});
    };
    if (form.hasLinearGamma) {
        add("gAMA", bigEndian(100'000, 4));
    }
    if (!metadata.iccProfile.empty()) {
        add("iCCP", joined({bytesOf("wide"), {0, 0}, compressed(metadata.iccProfile)}));
    } else if (form.isSrgb) {
        add("sRGB", {0});
    }
    if (!metadata.exif.empty()) {
        add("eXIf", metadata.exif);
    }
    if (!metadata.xmp.empty()) {
        add("iTXt", joined({bytesOf(PngXmpStart), metadata.xmp}));
    }
    constexpr std::size_t FirstAfterHeader = 33;
    return joined({part(file, 0, FirstAfterHeader), chunks, part(file, FirstAfterHeader, file.size())});
}

} // namespace imageworker
