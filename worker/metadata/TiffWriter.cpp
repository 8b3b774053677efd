#include "TiffWriter.h"

#include <algorithm>
#include <array>

namespace imageworker {

namespace {

constexpr std::size_t HeaderLength = 8;
constexpr std::size_t FieldLength = 12;
constexpr std::uint16_t Long = 4;

/// A directory to write. Its fields include the links to other directories.
struct Directory
{
    TiffTag link{};
    int parent = -1; ///< index of the directory that links here
    std::vector<TiffField> fields;
};

bool isLink(TiffTag tag)
{
    return tag == TiffTag::ExifDirectory || tag == TiffTag::PositionDirectory ||
           tag == TiffTag::InteroperabilityDirectory;
}

std::size_t outlyingLength(const TiffField &field)
{
    return field.valueLength <= 4 || isLink(field.tag) ? 0 : field.valueLength + field.valueLength % 2;
}

std::size_t lengthOf(const Directory &directory)
{
    std::size_t length = 2 + directory.fields.size() * FieldLength + 4;
    for (const TiffField &field : directory.fields) {
        length += outlyingLength(field);
    }
    return length;
}

std::size_t lengthOf(const std::vector<Directory> &directories)
{
    std::size_t length = HeaderLength;
    for (const Directory &directory : directories) {
        length += lengthOf(directory);
    }
    return length;
}

std::vector<Directory> readDirectories(const TiffFields &tiff)
{
    struct Link
    {
        TiffTag tag;
        int parent;
    };
    constexpr std::array Links = {Link{TiffTag::ExifDirectory, 0}, Link{TiffTag::PositionDirectory, 0},
                                  Link{TiffTag::InteroperabilityDirectory, 1}};
    std::vector<Directory> directories;
    directories.push_back({TiffTag{}, -1, tiff.fields(tiff.firstDirectory())});
    for (const Link &link : Links) {
        Directory directory{link.tag, link.parent, {}};
        const TiffField *field = fieldOf(directories[static_cast<std::size_t>(link.parent)].fields, link.tag);
        if (field != nullptr) {
            directory.fields = tiff.fields(tiff.value(*field));
        }
        directories.push_back(std::move(directory));
    }
    for (Directory &directory : directories) {
        std::erase_if(directory.fields,
                      [](const TiffField &field) { return field.tag == TiffTag::MakerNote; });
    }
    return directories;
}

/// Removes the largest values outside the entries until the rest fits into @p limit; false when it never
/// does.
bool removeLargest(std::vector<Directory> &directories, std::size_t limit)
{
    std::vector<TiffField *> byLength;
    for (Directory &directory : directories) {
        for (TiffField &field : directory.fields) {
            byLength.push_back(&field);
        }
    }
    std::ranges::stable_sort(byLength, std::ranges::greater{},
                             [](const TiffField *field) { return outlyingLength(*field); });
    std::size_t length = lengthOf(directories);
    for (TiffField *field : byLength) {
        if (length <= limit || outlyingLength(*field) == 0) {
            break;
        }
        length -= outlyingLength(*field) + FieldLength;
        field->valueLength = 0; // which no field has that was read
    }
    for (Directory &directory : directories) {
        std::erase_if(directory.fields, [](const TiffField &field) { return field.valueLength == 0; });
    }
    return length <= limit;
}

Bytes write(const TiffFields &source, const std::vector<Directory> &directories)
{
    Bytes output(lengthOf(directories));
    std::ranges::copy(source.bytes().first(4), output.begin()); // byte order and the number 42
    auto tiff = *TiffFields::of(output);
    tiff.setNumber(4, 4, HeaderLength);
    std::vector<std::size_t> positions;
    std::size_t position = HeaderLength;
    for (const Directory &directory : directories) {
        positions.push_back(position);
        position += lengthOf(directory);
    }
    for (std::size_t index = 0; index < directories.size(); ++index) {
        const auto &fields = directories[index].fields;
        tiff.setNumber(positions[index], 2, static_cast<std::uint32_t>(fields.size()));
        std::size_t entry = positions[index] + 2;
        std::size_t outlying = entry + fields.size() * FieldLength + 4;
        for (const TiffField &field : fields) {
            tiff.setNumber(entry, 2, static_cast<std::uint32_t>(field.tag));
            tiff.setNumber(entry + 2, 2, isLink(field.tag) ? Long : field.type);
            tiff.setNumber(entry + 4, 4, isLink(field.tag) ? 1 : field.count);
            const bool isApart = outlyingLength(field) > 0;
            if (isApart) {
                tiff.setNumber(entry + 8, 4, static_cast<std::uint32_t>(outlying));
            }
            // The value of a link is written below.
            if (!isLink(field.tag)) {
                const auto value = source.bytes().subspan(field.valuePosition, field.valueLength);
                std::ranges::copy(value, output.begin() +
                                             static_cast<std::ptrdiff_t>(isApart ? outlying : entry + 8));
            }
            for (std::size_t below = 1; below < directories.size(); ++below) {
                if (directories[below].link == field.tag &&
                    directories[below].parent == static_cast<int>(index)) {
                    tiff.setNumber(entry + 8, 4, static_cast<std::uint32_t>(positions[below]));
                }
            }
            outlying += outlyingLength(field);
            entry += FieldLength;
        }
    }
    return output;
}

} // namespace

Bytes rewrittenWithin(const TiffFields &tiff, std::size_t limit)
{
    std::vector<Directory> directories = readDirectories(tiff);
    return removeLargest(directories, limit) ? write(tiff, directories) : Bytes();
}

} // namespace imageworker
