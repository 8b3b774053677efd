#include "PlainPhoto.h"

#include <cstdio>
#include <cstdlib>
#include <jpeglib.h>
#include <png.h>
#include <string>
#include <string_view>

namespace imageworker {

namespace {

void writeMarker(jpeg_compress_struct &jpeg, std::string_view prefix, const Bytes &content)
{
    if (!content.empty()) {
        Bytes segment(prefix.begin(), prefix.end());
        segment.insert(segment.end(), content.begin(), content.end());
        jpeg_write_marker(&jpeg, JPEG_APP0 + 1, segment.data(), static_cast<unsigned>(segment.size()));
    }
}

} // namespace

Bytes makeJpeg(const Raster &picture, const PlainMetadata &metadata, JpegOrder order)
{
    constexpr std::string_view ExifPrefix("Exif\0\0", 6);
    constexpr std::string_view XmpPrefix("http://ns.adobe.com/xap/1.0/\0", 29);
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
    jpeg_set_quality(&jpeg, 100, TRUE);
    jpeg.comp_info[0].h_samp_factor = 1;
    jpeg.comp_info[0].v_samp_factor = 1;
    if (order == JpegOrder::Scans) {
        jpeg_simple_progression(&jpeg);
    }
    jpeg_start_compress(&jpeg, TRUE);
    writeMarker(jpeg, ExifPrefix, metadata.exif);
    writeMarker(jpeg, XmpPrefix, metadata.xmp);
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

Bytes makePng(const Raster &picture, const PlainMetadata &metadata)
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
                 static_cast<png_uint_32>(picture.size.height), 8, PNG_COLOR_TYPE_RGBA, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_BASE, PNG_FILTER_TYPE_BASE);
    if (!metadata.iccProfile.empty()) {
        png_set_iCCP(png, info, "wide", PNG_COMPRESSION_TYPE_BASE, metadata.iccProfile.data(),
                     static_cast<png_uint_32>(metadata.iccProfile.size()));
    }
    Bytes exif = metadata.exif;
    if (!exif.empty()) {
        png_set_eXIf_1(png, info, static_cast<png_uint_32>(exif.size()), exif.data());
    }
    std::string xmp(metadata.xmp.begin(), metadata.xmp.end());
    std::string keyword = "XML:com.adobe.xmp";
    png_text text = {};
    text.compression = PNG_ITXT_COMPRESSION_NONE;
    text.key = keyword.data();
    text.text = xmp.data();
    text.itxt_length = xmp.size();
    if (!xmp.empty()) {
        png_set_text(png, info, &text, 1);
    }
    png_write_info(png, info);
    for (int y = 0; y < picture.size.height; ++y) {
        png_write_row(png, picture.row(y));
    }
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    return file;
}

} // namespace imageworker
