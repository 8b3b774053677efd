#include "JpegDecoder.h"

#include "MagicBytes.h"
#include "SrgbTransform.h"

#include <algorithm>
#include <csetjmp>
#include <cstdio>
#include <jerror.h>
#include <jpeglib.h>
#include <string_view>

namespace imageworker {

namespace {

/// The library reports faults with longjmp(): no function that calls setjmp() owns an object with a
/// destructor.
class JpegReader
{
public:
    explicit JpegReader(std::span<const std::uint8_t> file)
        : m_file(file)
    {
        m_jpeg.err = jpeg_std_error(&m_errors);
        m_jpeg.client_data = this;
        m_errors.error_exit = [](j_common_ptr jpeg) { std::longjmp(owner(jpeg).m_fault, 1); };
        m_errors.emit_message = [](j_common_ptr jpeg, int) { owner(jpeg).noteWarning(); };
        m_errors.output_message = [](j_common_ptr) {};
    }
    ~JpegReader() { jpeg_destroy_decompress(&m_jpeg); }
    JpegReader(const JpegReader &) = delete;
    JpegReader &operator=(const JpegReader &) = delete;

    bool readHeader()
    {
        if (setjmp(m_fault) != 0) {
            return false;
        }
        jpeg_create_decompress(&m_jpeg);
        jpeg_save_markers(&m_jpeg, JPEG_APP0 + 1, 0xFFFF);
        jpeg_save_markers(&m_jpeg, JPEG_APP0 + 2, 0xFFFF);
        jpeg_mem_src(&m_jpeg, m_file.data(), static_cast<unsigned long>(m_file.size()));
        return jpeg_read_header(&m_jpeg, TRUE) == JPEG_HEADER_OK &&
               (m_jpeg.num_components == 1 || m_jpeg.num_components == 3);
    }

    bool start(int reduction)
    {
        if (setjmp(m_fault) != 0) {
            return false;
        }
        m_jpeg.scale_num = 1;
        m_jpeg.scale_denom = static_cast<unsigned>(reduction);
        m_jpeg.out_color_space = JCS_EXT_RGBX;
        return jpeg_start_decompress(&m_jpeg) == TRUE;
    }

    bool readRow(std::uint8_t *rgbx)
    {
        if (setjmp(m_fault) != 0) {
            return false;
        }
        JSAMPROW row = rgbx;
        return jpeg_read_scanlines(&m_jpeg, &row, 1) == 1 && !m_isDamaged;
    }

    bool finish()
    {
        if (setjmp(m_fault) != 0) {
            return false;
        }
        return jpeg_finish_decompress(&m_jpeg) == TRUE && !m_isDamaged;
    }

    /// Contents of all segments with this marker and prefix, joined.
    Bytes segments(int marker, std::string_view prefix, std::size_t skipped) const
    {
        Bytes content;
        for (auto segment = m_jpeg.marker_list; segment != nullptr; segment = segment->next) {
            const std::span data(segment->data, segment->data_length);
            if (segment->marker == marker && data.size() > prefix.size() + skipped &&
                std::equal(prefix.begin(), prefix.end(), data.begin(),
                           [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; })) {
                const auto rest = data.subspan(prefix.size() + skipped);
                content.insert(content.end(), rest.begin(), rest.end());
            }
        }
        return content;
    }

    PixelSize storedSize() const
    {
        return {static_cast<int>(m_jpeg.image_width), static_cast<int>(m_jpeg.image_height)};
    }
    PixelSize decodedSize() const
    {
        return {static_cast<int>(m_jpeg.output_width), static_cast<int>(m_jpeg.output_height)};
    }
    bool isGrey() const { return m_jpeg.num_components == 1; }

private:
    static JpegReader &owner(j_common_ptr jpeg) { return *static_cast<JpegReader *>(jpeg->client_data); }

    /// The library goes on after these warnings; what is missing stays grey.
    void noteWarning()
    {
        const int code = m_errors.msg_code;
        m_isDamaged =
            m_isDamaged || code == JWRN_JPEG_EOF || code == JWRN_HIT_MARKER || code == JWRN_HUFF_BAD_CODE;
    }

    std::span<const std::uint8_t> m_file;
    jpeg_decompress_struct m_jpeg = {};
    jpeg_error_mgr m_errors = {};
    std::jmp_buf m_fault = {};
    bool m_isDamaged = false;
};

} // namespace

Result<JpegHeader> readJpegHeader(std::span<const std::uint8_t> file)
{
    JpegReader reader(file);
    if (!reader.readHeader() || !isAcceptable(reader.storedSize().width, reader.storedSize().height)) {
        return unreadable();
    }
    return JpegHeader{reader.storedSize(), reader.segments(JPEG_APP0 + 1, JpegExifStart, 0),
                      reader.segments(JPEG_APP0 + 1, JpegXmpStart, 0)};
}

Result<Raster> decodeJpeg(std::span<const std::uint8_t> file, int reduction)
{
    JpegReader reader(file);
    if (!reader.readHeader() || !reader.start(reduction)) {
        return unreadable();
    }
    Raster raster(reader.decodedSize());
    constexpr std::size_t NumberAndCount = 2; // of the parts, which come in order
    const Bytes profile = reader.segments(JPEG_APP0 + 2, JpegIccStart, NumberAndCount);
    const auto transform = makeSrgbTransform(profile, {}, 255, reader.isGrey());
    for (int y = 0; y < raster.size.height; ++y) {
        if (!reader.readRow(raster.row(y))) {
            return unreadable();
        }
        convertInPlace(*transform, raster.row(y), raster.size.width);
    }
    if (!reader.finish()) {
        return unreadable();
    }
    return raster;
}

} // namespace imageworker
